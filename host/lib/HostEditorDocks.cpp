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
    const QDockWidget* const dock = m_nodeDock;
    if (!dock || !dock->isVisible() || dock->isFloating())
        return;
    m_height = dock->height();
    // By then the docks have found their new places.
    QTimer::singleShot(0, this, SLOT(restoreHeight()));
}

void HostEditorDocks::restoreHeight()
{
    QDockWidget* const dock = m_nodeDock;
    QDockWidget* const history = m_history;
    if (!dock || !history || dock->isFloating())
        return;
    // What one is to have more the other must have less, or both come out differently.
    const int more = m_height - dock->height();
    m_window.resizeDocks({dock, history}, {m_height, history->height() - more}, Qt::Vertical);
}
