#include "lib/HostEditorDocks.h"

#include "lib/HostShell.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QTimer>

HostEditorDocks::HostEditorDocks(QMainWindow& window, const HostShell& shell)
    : m_window(window), m_shell(shell)
{}

HostEditorDocks::~HostEditorDocks() = default;

bool HostEditorDocks::arrange(QDockWidget& history)
{
    QDockWidget* const fieldDock = m_shell.dockWithSlot("s_selectedFieldChanged(SoField*)");
    m_nodeDock = m_shell.dockWithSlot("s_selectedNodeChanged(SoFieldContainer*)");
    m_history = &history;
    for (QDockWidget* dock : {m_nodeDock.data(), fieldDock, &history}) {
        if (!dock)
            continue;
        const bool isHidden = dock->isHidden();
        m_window.addDockWidget(Qt::RightDockWidgetArea, dock);
        dock->setHidden(isHidden);
    }
    return m_nodeDock;
}

void HostEditorDocks::s_selectedFieldChanged(SoField*)
{
    if (!m_nodeDock || !m_nodeDock->isVisible() || m_nodeDock->isFloating())
        return;
    m_height = m_nodeDock->height();
    // By then the docks have found their new places.
    QTimer::singleShot(0, this, SLOT(restoreHeight()));
}

void HostEditorDocks::restoreHeight()
{
    if (!m_nodeDock || !m_history || m_nodeDock->isFloating())
        return;
    // What one is to have more the other must have less, or both come out differently.
    const int less = m_height - m_nodeDock->height();
    m_window.resizeDocks({m_nodeDock, m_history}, {m_height, m_history->height() - less},
                         Qt::Vertical);
}
