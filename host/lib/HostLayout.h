#pragma once

#include "TavrikHostExport.h"

#include <QByteArray>
#include <QPointer>
#include <Qt>

#include <vector>

class HostEditorDocks;
class HostShell;
class QDockWidget;
class QMainWindow;

/**
 * Where the main window's docks and tool bars stand: as text that can be kept, and set back to how
 * a new user finds them. A dock that is empty, as an editor's is while nothing is selected, is
 * never brought to light by it.
 */
class TAVRIKHOST_EXPORT HostLayout
{
public:
    /** None of them is owned. */
    HostLayout(QMainWindow& window, const HostShell& shell, HostEditorDocks& editorDocks);
    ~HostLayout();
    HostLayout(const HostLayout&) = delete;
    HostLayout& operator=(const HostLayout&) = delete;

    /** What becomes of a dock of the host's own where a plug-in has one for nodes. */
    enum class NextToNodeDock {
        Open,
        Closed ///< at first: it would show the same
    };

    /** Puts one of the host's own docks into the window, to stay there. It is not owned. */
    void addOwn(QDockWidget& dock, Qt::DockWidgetArea area,
                NextToNodeDock nextToNodeDock = NextToNodeDock::Open);
    /** Arranges everything as a new user finds it. */
    void reset();

    /** The present arrangement. */
    QByteArray state() const;
    /** Goes back to an arrangement. What it does not know stays in the window; none changes
     * nothing. */
    void setState(const QByteArray& state);
    void hideEmptyDocks() const;

    void restoreGeometry();
    void saveGeometry() const;

private:
    struct Own
    {
        QPointer<QDockWidget> dock;
        Qt::DockWidgetArea area = Qt::NoDockWidgetArea;
        NextToNodeDock nextToNodeDock = NextToNodeDock::Open;
    };

    void place(QDockWidget& dock, Qt::DockWidgetArea area);
    void placeOwn(Qt::DockWidgetArea area);
    bool arrangeEditors();
    void resizeOwn(bool isNodeDockThere);
    void limitHeight(QDockWidget& dock);
    void placeUnplaced();

    QMainWindow& m_window;
    const HostShell& m_shell;
    HostEditorDocks& m_editorDocks;
    std::vector<Own> m_own;
};
