#include "app/AppSceneView.h"

#include "app/AppExaminerViewer.h"

#include <Inventor/SbViewportRegion.h>
#include <Inventor/SoPath.h>
#include <Inventor/SoPickedPoint.h>
#include <Inventor/SoSceneManager.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QEvent>
#include <QWindow>

#include <algorithm>

namespace {

const SbColor Background(0.22F, 0.24F, 0.28F);
constexpr int RedrawsAfterExposure = 4;
constexpr int RedrawInterval = 120; // milliseconds

/** From the front, a little from the right and from above: most things show their shape so. */
const SbRotation FirstLook =
    SbRotation(SbVec3f(1, 0, 0), -0.4F) * SbRotation(SbVec3f(0, 1, 0), 0.4F);

/** The marker's box stands out from the scene, which the viewer clips as close as it can. */
SbVec2f makeRoomForMarker(void*, const SbVec2f& nearFar)
{
    const float room = 0.25F * (nearFar[1] - nearFar[0]);
    return {std::max(nearFar[0] - room, 0.1F * nearFar[0]), nearFar[1] + room};
}

/** The view's own camera stands above the scene, one of the scene's own inside it. */
bool isInside(const SoCamera* camera, const SoNode* top)
{
    SoSearchAction search;
    search.setNode(const_cast<SoCamera*>(camera));
    search.apply(const_cast<SoNode*>(top));
    return search.getPath() != nullptr;
}

} // namespace

AppSceneView::AppSceneView(QWidget* parent) : QWidget(parent), m_top(new SoSeparator)
{
    setObjectName(QStringLiteral("sceneCanvas"));
    m_top->ref();
    m_viewer =
        std::make_unique<AppExaminerViewer>(this, "viewer", TRUE, SoQtFullViewer::BUILD_POPUP);
    m_viewer->setDecoration(FALSE);
    m_viewer->setFeedbackVisibility(FALSE);
    // A scene that goes on turning by itself cannot be edited at leisure.
    m_viewer->setAnimationEnabled(FALSE);
    m_viewer->setHeadlight(TRUE);
    m_viewer->setBackgroundColor(Background);
    m_viewer->setTransparencyType(SoGLRenderAction::SORTED_OBJECT_BLEND);
    m_viewer->setAutoClippingStrategy(SoQtViewer::VARIABLE_NEAR_PLANE, 0.6F, makeRoomForMarker);
    m_viewer->setEventCallback(&AppSceneView::seeEvent, this);
    m_viewer->setSceneGraph(m_top);
    connect(&m_redrawTimer, SIGNAL(timeout()), SLOT(redraw()));
}

AppSceneView::~AppSceneView()
{
    m_marker.mark(nullptr);
    m_viewer->setEventCallback(nullptr);
    m_viewer.reset();
    m_top->unref();
}

const SoNode* AppSceneView::sceneParent() const
{
    return m_top;
}

QWidget* AppSceneView::canvas() const
{
    return m_viewer->getGLWidget();
}

void AppSceneView::setScene(SoNode* root)
{
    mark(nullptr);
    // The viewer looks for a camera once, when it is given a scene.
    m_viewer->setSceneGraph(nullptr);
    m_top->removeAllChildren();
    m_root = root;
    if (root)
        m_top->addChild(root);
    m_viewer->setSceneGraph(m_top);
    if (!root)
        return;
    SoCamera* camera = m_viewer->getCamera();
    if (isInside(camera, m_top)) {
        // What the scene's author shows is kept; the marker stands outside the scene and has to be
        // seen by the same camera.
        m_top->addChild(camera);
    } else {
        camera->orientation = FirstLook;
        m_viewer->viewAll();
    }
    m_top->addChild(m_marker.node());
    m_viewer->saveHomePosition();
}

void AppSceneView::mark(const SoPath* path)
{
    m_marker.mark(path);
}

void AppSceneView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (QWindow* window = canvas()->windowHandle())
        window->installEventFilter(this);
}

/**
 * The graphics driver learns of a new size of the canvas some time after Qt, and what it draws
 * before is clipped to the old size: the picture is drawn again until the driver must know.
 */
bool AppSceneView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Expose) {
        m_redrawsLeft = RedrawsAfterExposure;
        m_redrawTimer.start(RedrawInterval);
    }
    return QWidget::eventFilter(watched, event);
}

void AppSceneView::redraw()
{
    m_viewer->scheduleRedraw();
    if (--m_redrawsLeft <= 0)
        m_redrawTimer.stop();
}

SbBool AppSceneView::seeEvent(void* view, QEvent* event)
{
    auto* self = static_cast<AppSceneView*>(view);
    if (self->m_click.completedBy(*event))
        self->pick(self->m_click.position());
    return FALSE; // the viewer sees every event, too
}

void AppSceneView::pick(const QPoint& position)
{
    const SbViewportRegion& region = m_viewer->getViewportRegion();
    const SbVec2s pixels = region.getViewportSizePixels();
    const float scale = float(pixels[0]) / float(qMax(1, canvas()->width()));
    SoRayPickAction action(region);
    action.setPoint(SbVec2s(short(float(position.x()) * scale),
                            short(float(pixels[1]) - 1 - float(position.y()) * scale)));
    action.apply(m_viewer->getSceneManager()->getSceneGraph());
    const SoPickedPoint* picked = action.getPickedPoint();
    const SoPath* whole = picked ? picked->getPath() : nullptr;
    const int from = whole && m_root ? whole->findNode(m_root) : -1;
    if (from < 0) {
        emit clicked(nullptr);
        return;
    }
    SoPath* path = whole->copy(from);
    path->ref();
    emit clicked(path);
    path->unref();
}
