#pragma once

#include "TavrikExtenderAPIExport.h"

#include <Qt>

class QDockWidget;
class QToolBar;
class TvkExtension;

/** The host's main window, as far as extensions may use it. One per process, made by the host. */
class TAVRIKEXTENDERAPI_EXPORT TvkShell
{
public:
    TvkShell(const TvkShell&) = delete;
    TvkShell& operator=(const TvkShell&) = delete;
    virtual ~TvkShell();

    /** The host's shell; null while no host is up. */
    static TvkShell* getInstance();
    /** For the host: the shell that getInstance() answers from now on. Not owned. */
    static void setInstance(TvkShell* shell);

    /** Docks the widget. It stays the caller's own and keeps its visibility. */
    virtual void addDockWidget(QDockWidget* dock, Qt::DockWidgetArea area) = 0;
    /** Takes the widget out of the main window again, without parent and hidden. */
    virtual void removeDockWidget(QDockWidget* dock) = 0;
    /** Tells the host that an extension has become active. */
    virtual void registerExtension(TvkExtension* extension, bool active) = 0;
    virtual void unregisterExtension(TvkExtension* extension) = 0;
    virtual void addToolBar(QToolBar* toolBar, Qt::ToolBarArea area) = 0;
    virtual void removeToolBar(QToolBar* toolBar) = 0;

protected:
    TvkShell() = default;
};
