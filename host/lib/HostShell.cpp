#include "lib/HostShell.h"

#include <QMainWindow>

#include <algorithm>

namespace {
/** Forgets an object, and with it those that have died. */
template <class T>
void forget(std::vector<QPointer<T>>& list, const T* object)
{
    const auto gone = [object](const QPointer<T>& item) { return !item || item == object; };
    list.erase(std::remove_if(list.begin(), list.end(), gone), list.end());
}

template <class T>
void remember(std::vector<QPointer<T>>& list, T* object)
{
    if (std::find(list.begin(), list.end(), object) == list.end())
        list.push_back(object);
}

template <class T>
bool holds(const std::vector<QPointer<T>>& list, const T* object)
{
    return object && std::find(list.begin(), list.end(), object) != list.end();
}

template <class T>
std::vector<T*> living(const std::vector<QPointer<T>>& list)
{
    std::vector<T*> result;
    for (const QPointer<T>& item : list)
        if (item)
            result.push_back(item);
    return result;
}
} // namespace

HostShell::HostShell(QMainWindow& window) : m_window(window)
{
    setInstance(this);
}

HostShell::~HostShell() = default;

void HostShell::addDockWidget(QDockWidget* dock, Qt::DockWidgetArea area)
{
    if (!dock)
        return;
    makeSaveable(*dock);
    const bool hidden = dock->isHidden();
    m_window.addDockWidget(area, dock);
    dock->setHidden(hidden);
    remember(m_docks, dock);
    m_addedLast = dock;
    m_dockAreas.insert(dock->objectName(), area);
}

void HostShell::removeDockWidget(QDockWidget* dock)
{
    if (!holds(m_docks, dock))
        return;
    m_window.removeDockWidget(dock);
    dock->setParent(nullptr);
    forget(m_docks, dock);
}

void HostShell::registerExtension(TvkExtension* extension, bool active)
{
    // An extension adds its dock, then registers.
    if (extension && m_addedLast)
        m_dockOf[extension] = m_addedLast;
    m_addedLast = nullptr;
    if (extension && active)
        remember(m_active, extension);
    else
        forget(m_active, extension);
}

void HostShell::unregisterExtension(TvkExtension* extension)
{
    forget(m_active, extension);
    m_dockOf.erase(extension);
}

void HostShell::addToolBar(QToolBar* toolBar, Qt::ToolBarArea area)
{
    if (!toolBar)
        return;
    makeSaveable(*toolBar);
    const bool hidden = toolBar->isHidden();
    m_window.addToolBar(area, toolBar);
    toolBar->setHidden(hidden);
    remember(m_toolBars, toolBar);
    m_toolBarAreas.insert(toolBar->objectName(), area);
}

void HostShell::removeToolBar(QToolBar* toolBar)
{
    if (!holds(m_toolBars, toolBar))
        return;
    m_window.removeToolBar(toolBar);
    toolBar->setParent(nullptr);
    forget(m_toolBars, toolBar);
}

std::vector<TvkExtension*> HostShell::activeExtensions() const
{
    return living(m_active);
}

std::vector<QDockWidget*> HostShell::docks() const
{
    return living(m_docks);
}

QDockWidget* HostShell::dockWithSlot(const char* signature) const
{
    for (const TvkExtension* extension : activeExtensions()) {
        const auto found = m_dockOf.find(extension);
        if (found != m_dockOf.end() && extension->metaObject()->indexOfSlot(signature) >= 0)
            return found->second;
    }
    return nullptr;
}

std::vector<QToolBar*> HostShell::toolBars() const
{
    return living(m_toolBars);
}

Qt::DockWidgetArea HostShell::area(const QDockWidget& dock) const
{
    return m_dockAreas.value(dock.objectName(), Qt::RightDockWidgetArea);
}

Qt::ToolBarArea HostShell::area(const QToolBar& toolBar) const
{
    return m_toolBarAreas.value(toolBar.objectName(), Qt::TopToolBarArea);
}

void HostShell::makeSaveable(QWidget& widget) const
{
    if (!widget.objectName().isEmpty())
        return;
    const QString wanted = widget.windowTitle().isEmpty()
                               ? QString::fromLatin1(widget.metaObject()->className())
                               : widget.windowTitle();
    QString name = wanted;
    for (int i = 2; m_window.findChild<QWidget*>(name, Qt::FindDirectChildrenOnly); ++i)
        name = wanted + QLatin1Char(' ') + QString::number(i);
    widget.setObjectName(name);
}
