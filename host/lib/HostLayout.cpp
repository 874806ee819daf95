#include "lib/HostLayout.h"

#include "lib/HostSettings.h"
#include "lib/HostShell.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QScreen>

namespace {

const char* const GeometryKey = "window/geometry";
const char* const StateKey = "window/state";
/** To be raised when the host's own docks change so that a saved arrangement fits no longer. */
constexpr int StateVersion = 2;

} // namespace

HostLayout::HostLayout(QMainWindow& window, const HostShell& shell)
    : m_window(window), m_shell(shell)
{}

void HostLayout::setInitial()
{
    m_initial = m_window.saveState(StateVersion);
}

void HostLayout::restore()
{
    const HostSettings settings;
    m_window.restoreGeometry(settings.value(GeometryKey).toByteArray());
    m_window.restoreState(settings.value(StateKey).toByteArray(), StateVersion);
    hideEmptyDocks();
}

void HostLayout::save() const
{
    HostSettings settings;
    settings.setValue(GeometryKey, m_window.saveGeometry());
    settings.setValue(StateKey, m_window.saveState(StateVersion));
}

void HostLayout::reset()
{
    QVector<QDockWidget*> inUse;
    for (QDockWidget* dock : m_shell.docks())
        if (!dock->isHidden())
            inUse.append(dock);
    m_window.restoreState(m_initial, StateVersion);
    // The initial state was taken while nothing was selected.
    for (QDockWidget* dock : inUse) {
        dock->show();
        dock->raise();
    }
    hideEmptyDocks();
}

void HostLayout::hideEmptyDocks() const
{
    for (QDockWidget* dock : m_shell.docks())
        if (!dock->widget())
            dock->hide();
}
