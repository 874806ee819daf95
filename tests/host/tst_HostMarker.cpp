#include "lib/HostMarker.h"

#include "tests/support/TestMain.h"

#include <Inventor/SbViewportRegion.h>
#include <Inventor/SoDB.h>
#include <Inventor/SoPath.h>
#include <Inventor/SoPickedPoint.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoGetPrimitiveCountAction.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoTranslation.h>
#include <Inventor/sensors/SoSensorManager.h>

class tst_HostMarker : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void marksNothingAtFirst();
    void theBoxSurroundsTheMarkedShape();
    void aNodeThatDrawsNothingIsMarkedByItsGroup();
    void anEmptySceneShowsNoBox();
    void theBoxFollowsTheScene();
    void theBoxFollowsAShapeThatMovesAmongItsSiblings();
    void theBoxGoesWhenTheNodeIsRemoved();
    void aRemovedNodeIsNotKeptAlive();
    void aClosedSceneIsNotKeptAlive();
    void theMarkerTakesNoRoomAndCannotBePicked();

private:
    void mark(std::initializer_list<int> rows);
    SbBox3f box() const;

    SoSeparator* m_root = nullptr;
    SoTranslation* m_translation = nullptr;
    SoSeparator* m_group = nullptr;
    SoCube* m_cube = nullptr;
    std::unique_ptr<HostMarker> m_marker;
};

namespace {

void runSensors()
{
    SoDB::getSensorManager()->processDelayQueue(TRUE);
}

bool isNear(const SbVec3f& a, const SbVec3f& b)
{
    return (a - b).length() < 0.2F;
}

} // namespace

/** root { group { translation 10 0 0, material, cube } } */
void tst_HostMarker::init()
{
    m_root = new SoSeparator;
    m_root->ref();
    m_group = new SoSeparator;
    m_translation = new SoTranslation;
    m_translation->translation.setValue(10, 0, 0);
    m_cube = new SoCube;
    m_group->addChild(m_translation);
    m_group->addChild(new SoMaterial);
    m_group->addChild(m_cube);
    m_root->addChild(m_group);
    m_marker = std::make_unique<HostMarker>();
}

void tst_HostMarker::cleanup()
{
    m_marker.reset();
    if (m_root)
        m_root->unref();
    m_root = nullptr;
}

void tst_HostMarker::mark(std::initializer_list<int> rows)
{
    SoPath* path = new SoPath(m_root);
    path->ref();
    for (int row : rows)
        path->append(row);
    m_marker->mark(path);
    path->unref();
}

/** The corners that the marker draws. */
SbBox3f tst_HostMarker::box() const
{
    SoSearchAction search;
    search.setType(SoCoordinate3::getClassTypeId());
    search.setSearchingAll(TRUE);
    search.apply(m_marker->node());
    const auto corners = static_cast<const SoCoordinate3*>(search.getPath()->getTail());
    SbBox3f bounds;
    for (int i = 0; i < corners->point.getNum(); ++i)
        bounds.extendBy(corners->point[i]);
    return bounds;
}

void tst_HostMarker::marksNothingAtFirst()
{
    QVERIFY(!m_marker->isVisible());
    m_marker->mark(nullptr);
    QVERIFY(!m_marker->isVisible());
}

void tst_HostMarker::theBoxSurroundsTheMarkedShape()
{
    mark({0, 2});
    QVERIFY(m_marker->isVisible());
    QVERIFY(isNear(box().getMin(), SbVec3f(9, -1, -1)));
    QVERIFY(isNear(box().getMax(), SbVec3f(11, 1, 1)));
    m_marker->mark(nullptr);
    QVERIFY(!m_marker->isVisible());
}

void tst_HostMarker::aNodeThatDrawsNothingIsMarkedByItsGroup()
{
    mark({0, 1});
    QVERIFY(m_marker->isVisible());
    QVERIFY(isNear(box().getCenter(), SbVec3f(10, 0, 0)));
}

void tst_HostMarker::anEmptySceneShowsNoBox()
{
    m_root->removeAllChildren();
    mark({});
    QVERIFY(!m_marker->isVisible());
    m_root->addChild(new SoCube);
    runSensors();
    QVERIFY(m_marker->isVisible());
}

void tst_HostMarker::theBoxFollowsTheScene()
{
    mark({0, 2});
    m_translation->translation.setValue(0, 20, 0);
    runSensors();
    QVERIFY(isNear(box().getCenter(), SbVec3f(0, 20, 0)));
    m_cube->height = 10;
    runSensors();
    QVERIFY(isNear(box().getMax(), SbVec3f(1, 25, 1)));
}

void tst_HostMarker::theBoxFollowsAShapeThatMovesAmongItsSiblings()
{
    mark({0, 2});
    m_group->insertChild(new SoMaterial, 0);
    runSensors();
    QVERIFY(m_marker->isVisible());
    m_cube->height = 10;
    runSensors();
    QVERIFY(isNear(box().getMax(), SbVec3f(11, 5, 1)));
}

void tst_HostMarker::theBoxGoesWhenTheNodeIsRemoved()
{
    mark({0, 2});
    m_group->removeChild(2);
    runSensors();
    QVERIFY(!m_marker->isVisible());
}

void tst_HostMarker::aRemovedNodeIsNotKeptAlive()
{
    mark({0, 2});
    QCOMPARE(m_cube->getRefCount(), 1);
    m_cube->ref();
    m_group->removeChild(2);
    QCOMPARE(m_cube->getRefCount(), 1);
    m_cube->unref();
    runSensors();
    QVERIFY(!m_marker->isVisible());
}

void tst_HostMarker::aClosedSceneIsNotKeptAlive()
{
    mark({0, 2});
    QCOMPARE(m_root->getRefCount(), 1);
    m_root->unref();
    m_root = nullptr;
    QVERIFY(!m_marker->isVisible());
}

void tst_HostMarker::theMarkerTakesNoRoomAndCannotBePicked()
{
    mark({0, 2});
    const SbViewportRegion region(100, 100);
    SoGetBoundingBoxAction bounds(region);
    bounds.apply(m_marker->node());
    QVERIFY(bounds.getBoundingBox().isEmpty());

    const SbBox3f drawn = box();
    SoRayPickAction pick(region);
    pick.setRadius(10);
    pick.setRay(drawn.getMin() + SbVec3f(0, 0, 50), SbVec3f(0, 0, -1));
    pick.apply(m_marker->node());
    QVERIFY(!pick.getPickedPoint());

    SoGetPrimitiveCountAction count(region);
    count.apply(m_marker->node());
    QVERIFY(count.getLineCount() > 0);
}

TAVRIK_TEST_MAIN(tst_HostMarker)
#include "tst_HostMarker.moc"
