#pragma once

#include "TavrikHostExport.h"

#include <QMenu>

class HostShell;
class QMainWindow;

/** The View menu: shows and hides the docks and tool bars, the plug-ins' ones included. */
class TAVRIKHOST_EXPORT HostViewMenu : public QMenu
{
    Q_OBJECT

public:
    /** Neither is owned. */
    HostViewMenu(QMainWindow& window, const HostShell& shell);

    /** A dock that is empty, as an editor's is while nothing is selected, cannot be shown. */
    void enableDockActions();

signals:
    void resetRequested();

private slots:
    void fill();

private:
    QMainWindow& m_window;
    const HostShell& m_shell;
};
