#pragma once

class QAbstractItemView;
class QObject;
class QString;

/** The action of a list that copies the path of what is selected in it. */
class HostCopyPath
{
public:
    /**
     * Puts the action into the view's context menu, and on its keys while it has the keyboard. The
     * slot, as SLOT() gives it, does the copying; the view owns the action.
     */
    static void addTo(QAbstractItemView& view, const QString& name, const QObject* receiver,
                      const char* slot);
};
