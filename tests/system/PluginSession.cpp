#include "tests/system/PluginSession.h"

#include <TvkPlugin.h>

#include <QApplication>

PluginSession::PluginSession() : m_shell(m_window)
{
    m_other = new QLineEdit;
    m_window.setCentralWidget(m_other);
    TvkPlugin* const plugin =
        m_loader.load(HostPluginLoader::pluginDirectory() + QLatin1String("/TvkDefaults.so"));
    if (!plugin)
        qFatal("%s", qPrintable(m_loader.errorString()));
    m_manager.adopt(*plugin);
    m_window.resize(800, 500);
    m_window.show();
    QApplication::setActiveWindow(&m_window);
    run();
}

PluginSession::~PluginSession()
{
    m_services.selectNode(nullptr);
    m_services.undoStack().clear();
    m_manager.release(*m_loader.plugin());
}

void PluginSession::selectField(SoField* field)
{
    m_services.selectField(field);
    run();
}

QWidget* PluginSession::editor() const
{
    const QDockWidget* const dock = m_shell.dockWithSlot("s_selectedFieldChanged(SoField*)");
    QWidget* const widget = dock ? dock->widget() : nullptr;
    return widget && widget->isVisible() ? widget : nullptr;
}

void PluginSession::undoAll()
{
    while (history().canUndo())
        history().undo();
    run();
}

void PluginSession::redoAll()
{
    while (history().canRedo())
        history().redo();
    run();
}

void PluginSession::run()
{
    m_pump.pump();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
