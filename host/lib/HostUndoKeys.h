#pragma once

#include "TavrikHostExport.h"

#include <QObject>

class QKeyEvent;

/**
 * Lets the keys for undo and redo reach the host's undo stack although a text line has the focus. A
 * line would keep them for itself even when nothing has been typed into it since its last commit.
 */
class TAVRIKHOST_EXPORT HostUndoKeys : public QObject
{
    Q_OBJECT

public:
    HostUndoKeys();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static bool belongsToTheLine(const QKeyEvent& event, const QObject* watched);
};
