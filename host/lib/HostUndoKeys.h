#pragma once

#include "TavrikHostExport.h"

#include <QObject>

class QKeyEvent;
class QWidget;

/**
 * Lets the keys for undo and redo reach the host's undo stack although a text line has the focus. A
 * line would keep them for itself even when nothing has been typed into it since its last commit.
 */
class TAVRIKHOST_EXPORT HostUndoKeys : public QObject
{
    Q_OBJECT

public:
    /** Serves the lines of this window, its docks included, and no others of the process. */
    explicit HostUndoKeys(const QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool belongsToTheLine(const QKeyEvent& event, const QObject* watched) const;

    const QWidget& m_window;
};
