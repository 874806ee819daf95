#include "app/AppWindow.h"

#include "app/AppSceneView.h"

#include <Inventor/Qt/SoQt.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QCoreApplication>

namespace {

AppSceneView* makeView(QWidget* window)
{
    // SoQt draws into a native window; without this every dock would become one, too.
    QCoreApplication::setAttribute(Qt::AA_DontCreateNativeWidgetSiblings);
    SoQt::init(window);
    return new AppSceneView;
}

} // namespace

AppWindow::AppWindow() : m_view(makeView(this))
{
    setView(m_view);
    sceneModel().setOwnParent(m_view->sceneParent());
    connect(&scene(), SIGNAL(rootAboutToChange()), SLOT(dropScene()));
    connect(&scene(), SIGNAL(rootChanged()), SLOT(showScene()));
    connect(m_view, SIGNAL(clicked(const SoPath*)), SLOT(selectPath(const SoPath*)));
    connect(this, SIGNAL(nodeSelected(const SoPath*)), m_view, SLOT(mark(const SoPath*)));
    setManual(
        {QCoreApplication::applicationDirPath() + QStringLiteral("/../" TAVRIK_MANUAL_INSTALLED),
         QStringLiteral(TAVRIK_MANUAL_IN_SOURCES)});
    showScene();
}

AppWindow::~AppWindow()
{
    // The viewer goes while the window that SoQt was given is whole still.
    selectPath(nullptr);
    delete takeCentralWidget();
}

void AppWindow::dropScene()
{
    m_view->setScene(nullptr);
}

void AppWindow::showScene()
{
    m_view->setScene(scene().root());
}
