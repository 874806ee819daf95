#pragma once

#include "TavrikHostExport.h"

#include <QByteArray>

class HostShell;
class QDockWidget;
class QMainWindow;

/**
 * Where the main window's docks and tool bars stand: remembered from one run to the next, and set
 * back on request. A dock that is empty, as an editor's is while nothing is selected, is never
 * brought to light by it.
 */
class TAVRIKHOST_EXPORT HostLayout
{
public:
    /** Neither is owned. */
    HostLayout(QMainWindow& window, const HostShell& shell);

    /** Takes the present arrangement for the initial one; all docks must be there by now. */
    void setInitial();
    /** Goes back to what the last run saved, if anything. */
    void restore();
    void save() const;
    /** Goes back to the initial arrangement. */
    void reset();

private:
    void hideEmptyDocks() const;

    QMainWindow& m_window;
    const HostShell& m_shell;
    QByteArray m_initial;
};
