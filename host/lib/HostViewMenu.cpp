#include "lib/HostViewMenu.h"

#include "lib/HostShell.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QToolBar>

HostViewMenu::HostViewMenu(QMainWindow& window, const HostShell& shell)
    : QMenu(tr("&View"), &window), m_window(window), m_shell(shell)
{
    setObjectName(QStringLiteral("menuView"));
    connect(this, SIGNAL(aboutToShow()), SLOT(fill()));
}

void HostViewMenu::enableDockActions()
{
    for (QDockWidget* dock : m_shell.docks())
        dock->toggleViewAction()->setEnabled(dock->widget() != nullptr);
}

void HostViewMenu::fill()
{
    enableDockActions();
    clear();
    for (auto* dock : m_window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
        addAction(dock->toggleViewAction());
    for (auto* bar : m_window.findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly))
        addAction(bar->toggleViewAction());
    addSeparator();
    addAction(tr("&Reset layout"), this, SIGNAL(resetRequested()))
        ->setObjectName(QStringLiteral("actionResetLayout"));
}
