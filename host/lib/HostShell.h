#pragma once

#include "TavrikHostExport.h"

#include <TvkExtension.h>
#include <TvkShell.h>

#include <QDockWidget>
#include <QHash>
#include <QPointer>
#include <QToolBar>

#include <map>
#include <vector>

class QMainWindow;

/**
 * Lends the host's main window to the extensions. What they add stays theirs: they may delete it
 * without taking it out first.
 */
class TAVRIKHOST_EXPORT HostShell : public TvkShell
{
public:
    explicit HostShell(QMainWindow& window);
    ~HostShell() override;

    /** Gives a dock without object name one, without which the window cannot save its place. */
    void addDockWidget(QDockWidget* dock, Qt::DockWidgetArea area) override;
    void removeDockWidget(QDockWidget* dock) override;
    void registerExtension(TvkExtension* extension, bool active) override;
    void unregisterExtension(TvkExtension* extension) override;
    void addToolBar(QToolBar* toolBar, Qt::ToolBarArea area) override;
    void removeToolBar(QToolBar* toolBar) override;

    /** The extensions registered as active, in the order of registration. Not owned. */
    std::vector<TvkExtension*> activeExtensions() const;
    /** The docks that extensions have added, in order. Not owned. */
    std::vector<QDockWidget*> docks() const;
    /**
     * The dock of the first active extension that has a slot of this signature, such as
     * "s_selectedFieldChanged(SoField*)"; null when there is none. Not owned.
     */
    QDockWidget* dockWithSlot(const char* signature) const;
    /** The tool bars that extensions have added, in order. Not owned. */
    std::vector<QToolBar*> toolBars() const;
    /** Where an extension has put a dock or tool bar of these, wherever it stands now. */
    Qt::DockWidgetArea area(const QDockWidget& dock) const;
    Qt::ToolBarArea area(const QToolBar& toolBar) const;

private:
    void makeSaveable(QWidget& widget) const;

    QMainWindow& m_window;
    std::vector<QPointer<TvkExtension>> m_active;
    std::map<const TvkExtension*, QPointer<QDockWidget>> m_dockOf; ///< for looking up only
    QPointer<QDockWidget> m_addedLast; ///< of the extension that registers next
    std::vector<QPointer<QDockWidget>> m_docks;
    std::vector<QPointer<QToolBar>> m_toolBars;
    // By object name, which outlives its owner.
    QHash<QString, Qt::DockWidgetArea> m_dockAreas;
    QHash<QString, Qt::ToolBarArea> m_toolBarAreas;
};
