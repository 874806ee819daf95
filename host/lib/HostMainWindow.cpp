#include "lib/HostMainWindow.h"

#include "lib/HostFieldList.h"

#include <Inventor/fields/SoField.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QTreeView>
#include <QUndoView>
#include <QUrl>

namespace {

constexpr QSize PreferredSize(1600, 1000);
/** What the window manager's frame takes, roughly; it is not known before the window is shown. */
constexpr QSize FrameSize(16, 48);

QString droppedFile(const QMimeData& data)
{
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}

} // namespace

HostMainWindow::HostMainWindow()
    : m_shell(*this), m_defaults(m_services), m_plugins(m_pluginsManager), m_browser(m_services),
      m_fileMenu(m_scene, this), m_editorDocks(*this, m_shell),
      m_layout(*this, m_shell, m_editorDocks),
      m_profileKeeper(m_pluginsManager, m_layout, m_services), m_undoKeys(*this),
      m_fieldWatch(&HostMainWindow::fieldChanged, this), m_viewMenu(*this, m_shell),
      m_profilesMenu(m_pluginsManager, this), m_helpMenu(this)
{
    setObjectName(QStringLiteral("HostMainWindow"));
    setAcceptDrops(true);
    setDockNestingEnabled(true);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    resize(PreferredSize.boundedTo(screen()->availableSize() - FrameSize));
    m_fieldWatch.setPriority(0);
    m_pluginsManager.adopt(m_defaults);
    buildDocks();
    buildMenus();
    connectParts();
    s_rootChanged();
    statusBar()->show();
}

HostMainWindow::~HostMainWindow()
{
    // While the plug-ins take their docks out, nobody may listen to a half-destroyed window.
    disconnect(&m_services, nullptr, this, nullptr);
    disconnect(&m_scene, nullptr, this, nullptr);
    m_fieldWatch.detach();
    m_browser.setRoot(nullptr);
    m_plugins.release();
    m_pluginsManager.release(m_defaults);
    m_services.undoStack().clear();
    m_plugins.unload();
}

void HostMainWindow::buildDocks()
{
    addDock(QStringLiteral("sceneDock"), tr("Scene"), m_browser.sceneView(),
            Qt::LeftDockWidgetArea);
    addDock(QStringLiteral("fieldsDock"), tr("Fields"), m_browser.fieldList(),
            Qt::LeftDockWidgetArea, HostLayout::NextToNodeDock::Closed);
    auto* history = new QUndoView(&m_services.undoStack().stack());
    history->setObjectName(QStringLiteral("historyView"));
    history->setEmptyLabel(tr("<unchanged>"));
    addDock(QStringLiteral("historyDock"), tr("History"), history, Qt::RightDockWidgetArea);
}

void HostMainWindow::addDock(const QString& name, const QString& title, QWidget* widget,
                             Qt::DockWidgetArea area, HostLayout::NextToNodeDock nextToNodeDock)
{
    auto* dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(widget);
    m_layout.addOwn(*dock, area, nextToNodeDock);
}

void HostMainWindow::buildMenus()
{
    menuBar()->addMenu(&m_fileMenu);
    buildEditMenu();
    menuBar()->addMenu(&m_viewMenu);
    menuBar()->addMenu(&m_profilesMenu);
    menuBar()->addMenu(&m_helpMenu);
}

void HostMainWindow::buildEditMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    menu->setObjectName(QStringLiteral("menuEdit"));
    QUndoStack& stack = m_services.undoStack().stack();
    QAction* undo = stack.createUndoAction(this, tr("&Undo"));
    undo->setObjectName(QStringLiteral("actionUndo"));
    undo->setShortcut(QKeySequence(tr("Ctrl+Z")));
    menu->addAction(undo);
    QAction* redo = stack.createRedoAction(this, tr("&Redo"));
    redo->setObjectName(QStringLiteral("actionRedo"));
    redo->setShortcut(QKeySequence(tr("Ctrl+Shift+Z")));
    menu->addAction(redo);
}

void HostMainWindow::connectParts()
{
    connect(&m_scene, SIGNAL(rootAboutToChange()), SLOT(s_rootAboutToChange()));
    connect(&m_scene, SIGNAL(rootChanged()), SLOT(s_rootChanged()));
    connect(&m_scene, SIGNAL(modifiedChanged(bool)), SLOT(updateTitle()));
    connect(&m_services, SIGNAL(selectedFieldChanged(SoField*)),
            SLOT(s_selectedFieldChanged(SoField*)));
    connect(&m_services, SIGNAL(selectedFieldChanged(SoField*)), &m_editorDocks,
            SLOT(s_selectedFieldChanged(SoField*)));
    connect(&m_services.undoStack(), SIGNAL(edited()), SLOT(s_edited()));
    connect(&m_browser, SIGNAL(nodeSelected(const SoPath*)), SIGNAL(nodeSelected(const SoPath*)));
    connect(&m_fileMenu, SIGNAL(saved()), SLOT(s_saved()));
    connect(&m_fileMenu, SIGNAL(quitRequested()), SLOT(close()));
    connect(&m_viewMenu, SIGNAL(resetRequested()), SLOT(resetLayout()));
    connect(&m_fileMenu, SIGNAL(message(QString)), SLOT(showMessage(QString)));
}

void HostMainWindow::setView(QWidget* view)
{
    setCentralWidget(view);
}

void HostMainWindow::loadPlugins(const QString& directory)
{
    tellPluginErrors(m_plugins.load(directory));
}

void HostMainWindow::loadPlugins(const QStringList& files)
{
    tellPluginErrors(m_plugins.load(files));
}

void HostMainWindow::tellPluginErrors(const QStringList& errors)
{
    m_layout.hideEmptyDocks();
    if (errors.isEmpty())
        return;
    const QString text = tr("Not every plug-in could be loaded.");
    statusBar()->showMessage(text);
    auto* box = new QMessageBox(QMessageBox::Warning, tr("Plug-ins"), text, QMessageBox::Ok, this);
    box->setObjectName(QStringLiteral("pluginErrorsBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->setInformativeText(errors.join('\n'));
    // Not before the window itself is shown.
    QTimer::singleShot(0, box, SLOT(open()));
}

void HostMainWindow::restoreLayout()
{
    m_layout.restoreGeometry();
    m_layout.reset();
    m_profileKeeper.restoreLayout();
}

void HostMainWindow::s_rootAboutToChange()
{
    // The views and editors let go first: what follows destroys what they point to.
    m_browser.setRoot(nullptr);
    m_services.undoStack().clear();
}

void HostMainWindow::s_rootChanged()
{
    m_browser.setRoot(m_scene.root());
    updateTitle();
}

void HostMainWindow::s_selectedFieldChanged(SoField* field)
{
    m_fieldWatch.detach();
    if (field)
        m_fieldWatch.attach(field);
}

void HostMainWindow::fieldChanged(void* window, SoSensor*)
{
    auto* self = static_cast<HostMainWindow*>(window);
    // A connected field changes by itself; that is no edit.
    if (!self->m_fieldWatch.getAttachedField()->isConnected())
        self->m_scene.setModified(true);
}

/**
 * Also undoing back to the saved state leaves the scene modified: some commands keep the edited
 * value when they are undone, so that only saving makes the file and the scene the same.
 */
void HostMainWindow::s_edited()
{
    m_scene.setModified(true);
}

void HostMainWindow::s_saved()
{
    m_services.undoStack().stack().setClean();
    updateTitle();
}

void HostMainWindow::updateTitle()
{
    const QString file = QFileInfo(m_scene.filePath()).fileName();
    setWindowFilePath(m_scene.filePath());
    setWindowTitle(tr("%1[*] - Tavrik").arg(file.isEmpty() ? tr("No scene") : file));
    setWindowModified(m_scene.isModified());
}

/** At once: what is announced may keep the program from drawing for a while. */
void HostMainWindow::showMessage(const QString& text)
{
    statusBar()->showMessage(text);
    statusBar()->repaint();
}

QMenu* HostMainWindow::createPopupMenu()
{
    m_viewMenu.enableDockActions();
    return QMainWindow::createPopupMenu();
}

void HostMainWindow::closeEvent(QCloseEvent* event)
{
    if (m_fileMenu.mayDiscard()) {
        m_layout.saveGeometry();
        m_profileKeeper.save();
        event->accept();
    } else {
        event->ignore();
    }
}

void HostMainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!droppedFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void HostMainWindow::dropEvent(QDropEvent* event)
{
    m_dropped = droppedFile(*event->mimeData());
    if (!m_dropped.isEmpty()) {
        event->acceptProposedAction();
        // Opening may ask a question, and the program that the file comes from waits for us.
        QTimer::singleShot(0, this, SLOT(openDropped()));
    }
}

void HostMainWindow::openDropped()
{
    openFile(m_dropped);
}
