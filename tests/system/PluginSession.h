#pragma once

#include "lib/HostPluginLoader.h"
#include "lib/HostPluginsManager.h"
#include "lib/HostSensorPump.h"
#include "lib/HostServices.h"
#include "lib/HostShell.h"

#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>

/** The plug-in in a window of the host's, as the program has it, but without the picture. */
class PluginSession
{
public:
    PluginSession();
    ~PluginSession();
    PluginSession(const PluginSession&) = delete;
    PluginSession& operator=(const PluginSession&) = delete;

    void selectNode(SoNode* node) { m_services.selectNode(node); }
    void selectField(SoField* field);
    /** The shown editor's widget; null where none is shown. */
    QWidget* editor() const;
    QUndoStack& history() { return m_services.undoStack().stack(); }
    void undoAll();
    void redoAll();
    /** Runs the event loop and Coin's sensors once. */
    void run();
    /** The keyboard goes on to a widget outside of the editor. */
    void leaveEditor() { m_other->setFocus(Qt::TabFocusReason); }

private:
    QMainWindow m_window;
    QLineEdit* m_other = nullptr; ///< owned by the window
    HostServices m_services;
    HostShell m_shell;
    HostSensorPump m_pump;
    HostPluginsManager m_manager;
    HostPluginLoader m_loader;
};
