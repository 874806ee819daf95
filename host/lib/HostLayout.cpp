#include "lib/HostLayout.h"

#include "lib/HostEditorDocks.h"
#include "lib/HostSettings.h"
#include "lib/HostShell.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QScreen>

namespace {

const char* const GeometryKey = "window/geometry";
/** To be raised when the host's own docks change so that a saved arrangement fits no longer. */
constexpr int StateVersion = 2;

/** What the docks at the sides take of the window's width at first. */
struct Percents
{
    int left;
    int right;
};
constexpr Percents WithNodeDock = {25, 30};
constexpr Percents WithoutNodeDock = {30, 20};
/** How the docks on the left share its height, from the top. */
const QList<int> LeftShares = {3, 2};
/** What a dock below the view takes of the height, so that most of it is the view's. */
constexpr int BottomPercent = 20;

} // namespace

HostLayout::HostLayout(QMainWindow& window, const HostShell& shell, HostEditorDocks& editorDocks)
    : m_window(window), m_shell(shell), m_editorDocks(editorDocks)
{}

HostLayout::~HostLayout() = default;

void HostLayout::addOwn(QDockWidget& dock, Qt::DockWidgetArea area, NextToNodeDock nextToNodeDock)
{
    m_own.push_back({&dock, area, nextToNodeDock});
    m_window.addDockWidget(area, &dock);
}

void HostLayout::reset()
{
    for (QToolBar* toolBar : m_shell.toolBars()) {
        m_window.addToolBar(m_shell.area(*toolBar), toolBar);
        toolBar->show();
    }
    placeOwn(Qt::LeftDockWidgetArea);
    for (QDockWidget* dock : m_shell.docks())
        place(*dock, m_shell.area(*dock));
    placeOwn(Qt::RightDockWidgetArea); // below what the plug-ins have put there
    resizeOwn(arrangeEditors());
    for (QDockWidget* dock : m_shell.docks())
        limitHeight(*dock);
    hideEmptyDocks();
}

/** Answers whether there is a dock for nodes. */
bool HostLayout::arrangeEditors()
{
    bool isNodeDockThere = false;
    for (const Own& own : m_own)
        if (own.dock && own.area == Qt::RightDockWidgetArea)
            isNodeDockThere = m_editorDocks.arrange(*own.dock);
    for (const Own& own : m_own) {
        QDockWidget* const dock = own.dock;
        if (dock && own.nextToNodeDock == NextToNodeDock::Closed)
            dock->setVisible(!isNodeDockThere);
    }
    return isNodeDockThere;
}

void HostLayout::place(QDockWidget& dock, Qt::DockWidgetArea area)
{
    dock.setFloating(false);
    m_window.addDockWidget(area, &dock);
    dock.show();
}

void HostLayout::placeOwn(Qt::DockWidgetArea area)
{
    for (const Own& own : m_own)
        if (own.dock && own.area == area)
            place(*own.dock, area);
}

void HostLayout::resizeOwn(bool isNodeDockThere)
{
    const Percents& percents = isNodeDockThere ? WithNodeDock : WithoutNodeDock;
    QList<QDockWidget*> left;
    for (const Own& own : m_own) {
        if (!own.dock)
            continue;
        const bool isLeft = own.area == Qt::LeftDockWidgetArea;
        const int percent = isLeft ? percents.left : percents.right;
        m_window.resizeDocks({own.dock}, {m_window.width() * percent / 100}, Qt::Horizontal);
        if (isLeft)
            left.append(own.dock);
    }
    m_window.resizeDocks(left, LeftShares.mid(0, left.size()), Qt::Vertical);
}

void HostLayout::limitHeight(QDockWidget& dock)
{
    if (m_window.dockWidgetArea(&dock) == Qt::BottomDockWidgetArea)
        m_window.resizeDocks({&dock}, {m_window.height() * BottomPercent / 100}, Qt::Vertical);
}

QByteArray HostLayout::state() const
{
    return m_window.saveState(StateVersion);
}

void HostLayout::setState(const QByteArray& state)
{
    m_window.restoreState(state, StateVersion);
    placeUnplaced();
    hideEmptyDocks();
}

/** The window loses the place of a dock that an arrangement does not know. */
void HostLayout::placeUnplaced()
{
    for (QDockWidget* dock : m_shell.docks()) {
        if (m_window.dockWidgetArea(dock) != Qt::NoDockWidgetArea)
            continue;
        place(*dock, m_shell.area(*dock));
        limitHeight(*dock);
    }
}

void HostLayout::hideEmptyDocks() const
{
    for (QDockWidget* dock : m_shell.docks())
        if (!dock->widget())
            dock->hide();
}

void HostLayout::restoreGeometry()
{
    m_window.restoreGeometry(HostSettings().value(GeometryKey).toByteArray());
}

void HostLayout::saveGeometry() const
{
    HostSettings().setValue(GeometryKey, m_window.saveGeometry());
}
