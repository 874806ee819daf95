#pragma once

#include <TvkShell.h>

#include <QStringList>

/**
 * A main window for tests that only writes down what it is asked for, one line a call, such as
 * `addDockWidget "Field Editor" 2`: docks and tool bars by window title, areas as Qt's numbers,
 * extensions by name. Says of itself that it is the host's shell.
 */
class RecordingShell : public TvkShell
{
public:
    RecordingShell();

    void addDockWidget(QDockWidget* dock, Qt::DockWidgetArea area) override;
    void removeDockWidget(QDockWidget* dock) override;
    void registerExtension(TvkExtension* extension, bool active) override;
    void unregisterExtension(TvkExtension* extension) override;
    void addToolBar(QToolBar* toolBar, Qt::ToolBarArea area) override;
    void removeToolBar(QToolBar* toolBar) override;

    QStringList calls;
};
