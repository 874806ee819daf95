#pragma once

#include "tests/support/ComboChoice.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/RecordingPluginsManager.h"

#include "ProfileSelector/TvkProfileSelectorExtension.h"

#include <QMainWindow>
#include <QPointer>
#include <QToolBar>

/** A shell that puts tool bars into a real window, and notes how it was asked. */
class WindowShell : public RecordingShell
{
public:
    void addToolBar(QToolBar* toolBar, Qt::ToolBarArea area) override
    {
        RecordingShell::addToolBar(toolBar, area);
        bar = toolBar;
        wasActive = selector && selector->isActive();
        window.addToolBar(area, toolBar);
        toolBar->hide();
    }
    void removeToolBar(QToolBar* toolBar) override
    {
        RecordingShell::removeToolBar(toolBar);
        wasActive = selector && selector->isActive();
        if (!toolBar)
            return;
        window.removeToolBar(toolBar);
        toolBar->setParent(nullptr);
    }

    QMainWindow window;
    QPointer<QToolBar> bar;
    const TvkExtension* selector = nullptr; ///< not owned
    bool wasActive = false;                 ///< at the last call
};

inline QStringList texts(const QComboBox& combo)
{
    QStringList list;
    for (int i = 0; i < combo.count(); ++i)
        list << combo.itemText(i);
    return list;
}

/** The tool bar in a window, with three profiles of which the second is active. */
struct SelectorRig
{
    explicit SelectorRig(std::initializer_list<const char*> names = {"A", "B", "C"})
        : manager(names)
    {
        shell.selector = &selector;
        if (names.size() > 1)
            manager.start(1);
        selector.createWidgets();
    }
    ~SelectorRig()
    {
        selector.deactivate();
        selector.releaseWidgets();
    }
    SelectorRig(const SelectorRig&) = delete;
    SelectorRig& operator=(const SelectorRig&) = delete;

    void activate()
    {
        selector.activate();
        selector.show();
        shell.window.show();
        QApplication::setActiveWindow(&shell.window);
    }
    QComboBox& combo() const { return *shell.bar->findChild<QComboBox*>("profileCombo"); }
    void choose(int row) const { clickRow(combo(), row); }

    WindowShell shell;
    RecordingPluginsManager manager;
    TvkProfileSelectorExtension selector;
};
