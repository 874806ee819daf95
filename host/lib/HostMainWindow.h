#pragma once

#include "lib/HostBrowser.h"
#include "lib/HostDefaults.h"
#include "lib/HostEditorDocks.h"
#include "lib/HostFileMenu.h"
#include "lib/HostHelpMenu.h"
#include "lib/HostLayout.h"
#include "lib/HostPluginFolder.h"
#include "lib/HostPluginsManager.h"
#include "lib/HostProfileKeeper.h"
#include "lib/HostProfilesMenu.h"
#include "lib/HostScene.h"
#include "lib/HostServices.h"
#include "lib/HostShell.h"
#include "lib/HostUndoKeys.h"
#include "lib/HostViewMenu.h"

#include <Inventor/sensors/SoFieldSensor.h>

#include <QMainWindow>

/**
 * The inspector's window: menus, the scene tree, the list of the selected node's fields, the undo
 * history, and the docks and tool bars of the plug-ins. Where a plug-in has a dock for node editors
 * the list of fields is in that dock, and the window's own dock for it is closed at first. The 3D
 * view is the program's own: it is given with setView(), so that the library needs no GUI binding
 * of Coin.
 */
class TAVRIKHOST_EXPORT HostMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    HostMainWindow();
    ~HostMainWindow() override;

    /** The widget that shows the scene; the window owns it from now on. */
    void setView(QWidget* view);
    /**
     * Takes over the profiles of the last run, and stores them from now on; to be called before the
     * plug-ins are loaded. Without it there is "Default", and nothing is stored.
     */
    void restoreProfiles() { m_profileKeeper.read(); }
    /** Loads the plug-ins of a folder and says, in a box, which of them cannot be used. */
    void loadPlugins(const QString& directory);
    /** The same for single libraries. */
    void loadPlugins(const QStringList& files);
    /** For who wants to say himself what cannot be used. */
    HostPluginFolder& plugins() { return m_plugins; }
    /** Arranges the docks as the last run left them; call it once the view and plug-ins are in. */
    void restoreLayout();
    /** Offers the first of these files that exists in the Help menu. */
    void setManual(const QStringList& candidates) { m_helpMenu.setManual(candidates); }

    /** Opens a scene, asking first when the open one has unsaved changes. */
    bool openFile(const QString& path) { return m_fileMenu.openFile(path); }

    /** Selects a node and perhaps a field of it; see HostBrowser::select(). */
    bool select(const QString& path, QString* error) { return m_browser.select(path, error); }

    HostScene& scene() { return m_scene; }
    HostServices& services() { return m_services; }
    HostPluginsManager& pluginsManager() { return m_pluginsManager; }
    HostSceneModel& sceneModel() { return m_browser.sceneModel(); }

    QMenu* createPopupMenu() override;

public slots:
    /** Selects what was picked in the view, null when nothing was. */
    void selectPath(const SoPath* path) { m_browser.selectPath(path); }
    void resetLayout() { m_layout.reset(); }

signals:
    /** What is selected in the tree now; null when nothing is. Only valid during the call. */
    void nodeSelected(const SoPath* path);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private slots:
    void s_rootAboutToChange();
    void s_rootChanged();
    void s_selectedFieldChanged(SoField* field);
    void s_edited();
    void s_saved();
    void updateTitle();
    void showMessage(const QString& text);
    void openDropped();

private:
    void buildDocks();
    void buildMenus();
    void buildEditMenu();
    void connectParts();
    void addDock(const QString& name, const QString& title, QWidget* widget,
                 Qt::DockWidgetArea area,
                 HostLayout::NextToNodeDock nextToNodeDock = HostLayout::NextToNodeDock::Open);
    void tellPluginErrors(const QStringList& errors);
    static void fieldChanged(void* window, SoSensor*);

    // The plug-ins' parts go first, the scene last.
    HostScene m_scene;
    HostServices m_services;
    HostShell m_shell;
    HostPluginsManager m_pluginsManager;
    HostDefaults m_defaults;
    HostPluginFolder m_plugins;
    HostBrowser m_browser;
    HostFileMenu m_fileMenu;
    HostEditorDocks m_editorDocks;
    HostLayout m_layout;
    HostProfileKeeper m_profileKeeper;
    HostUndoKeys m_undoKeys;
    SoFieldSensor m_fieldWatch; ///< for edits that push no command
    HostViewMenu m_viewMenu;
    HostProfilesMenu m_profilesMenu;
    HostHelpMenu m_helpMenu;
    QString m_dropped;
};
