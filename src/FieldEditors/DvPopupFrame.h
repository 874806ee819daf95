#pragma once

#include <QFrame>

class QGridLayout;

/** A frame with a grid that pops up beside a widget, whole on the screen, and closes on Escape and
 * on a click elsewhere. */
class DvPopupFrame final : public QFrame
{
    Q_OBJECT

public:
    explicit DvPopupFrame(QWidget* parent);

    /** For the frame's lines. */
    QGridLayout& grid() { return *m_grid; }

    /** Shows the frame below the widget, or above it where there is no room. */
    void popUpBeside(const QWidget& widget);

signals:
    void aboutToClose();

protected:
    void hideEvent(QHideEvent* event) override;

private:
    QGridLayout* const m_grid;
};
