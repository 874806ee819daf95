#pragma once

#include <QPoint>

class QEvent;

/** Tells a click from a drag: the left button pressed and released at about the same place. */
class AppClick
{
public:
    /** Sees every event of the view; true when one completes a click, which was at position(). */
    bool completedBy(const QEvent& event);
    QPoint position() const { return m_pressed; }

private:
    QPoint m_pressed;
    bool m_possible = false;
};
