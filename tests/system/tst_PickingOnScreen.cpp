#include "tests/support/TestMain.h"
#include "tests/system/SessionOnScreen.h"

#include "app/AppRobot.h"
#include "app/AppSceneView.h"

#include <Inventor/SbName.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>

#include <QMouseEvent>
#include <QTreeView>

namespace {

const char* const CameraScene = "#Inventor V2.1 ascii\n"
                                "Separator {\n"
                                "  DEF Eye PerspectiveCamera { position 0 0 20 }\n"
                                "  DEF Ball Sphere { radius 2 }\n"
                                "}\n";

} // namespace

/** The way from the picture to the tree and back. */
class tst_PickingOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_session.start(); }
    void cleanup() { m_session.finish(); }
    void selectingANodeMarksItInThePicture();
    void pickingAShapeSelectsItsNode();
    void pickingWorksWhileTheViewIsForPicking();
    void pickingNothingClearsTheSelection();
    void draggingTurnsTheSceneAndSelectsNothing();
    void aSceneIsShownByItsOwnCamera();
    void theViewsHoldOnACameraIsNoParent();

private:
    SessionOnScreen m_session;
};

void tst_PickingOnScreen::selectingANodeMarksItInThePicture()
{
    const QImage before = m_session.picture();
    m_session.selectNode("Box");
    QVERIFY(AppRobot::differ(m_session.picture(), before));
    m_session.window().selectPath(nullptr);
    QVERIFY(!AppRobot::differ(m_session.picture(), before));
}

void tst_PickingOnScreen::pickingAShapeSelectsItsNode()
{
    auto* tree = m_session.visible<QTreeView>("sceneView");
    tree->collapseAll();
    m_session.clickInView(28, 50);
    QCOMPARE(m_session.window().services().selectedNode(), SoNode::getByName("Ball"));
    const QModelIndex current = tree->currentIndex();
    QVERIFY(tree->viewport()->rect().contains(tree->visualRect(current)));
    QCOMPARE(current.siblingAtColumn(HostSceneModel::NameColumn).data().toString(),
             QStringLiteral("Ball"));
}

void tst_PickingOnScreen::pickingWorksWhileTheViewIsForPicking()
{
    QTest::keyClick(m_session.window().view().canvas(), Qt::Key_Escape);
    m_session.clickInView(28, 50);
    QCOMPARE(m_session.window().services().selectedNode(), SoNode::getByName("Ball"));
}

void tst_PickingOnScreen::pickingNothingClearsTheSelection()
{
    m_session.select("Move", "translation");
    m_session.clickInView(3, 3);
    QCOMPARE(m_session.window().services().selectedNode(), nullptr);
    QVERIFY(m_session.vectorLines().isEmpty());
}

void tst_PickingOnScreen::draggingTurnsTheSceneAndSelectsNothing()
{
    const QImage before = m_session.picture();
    QWidget* canvas = m_session.window().view().canvas();
    const QPoint from = canvas->rect().center();
    QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, from);
    for (int i = 1; i <= 10; ++i) {
        QMouseEvent move(QEvent::MouseMove, from + QPoint(8 * i, 0),
                         canvas->mapToGlobal(from + QPoint(8 * i, 0)), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(canvas, &move);
        QTest::qWait(20);
    }
    QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, from + QPoint(80, 0));
    QVERIFY(AppRobot::differ(m_session.picture(), before));
    QCOMPARE(m_session.window().services().selectedNode(), nullptr);
}

void tst_PickingOnScreen::aSceneIsShownByItsOwnCamera()
{
    QVERIFY(m_session.window().openFile(m_session.write("camera.iv", CameraScene)));
    const auto* eye = static_cast<SoPerspectiveCamera*>(SoNode::getByName("Eye"));
    const QImage before = m_session.picture();
    QVERIFY(AppRobot::isDrawn(before));
    QCOMPARE(eye->position.getValue(), SbVec3f(0, 0, 20));
    m_session.selectNode("Ball");
    QVERIFY(AppRobot::differ(m_session.picture(), before));
    m_session.clickInView(50, 50);
    QCOMPARE(m_session.window().services().selectedNode(), SoNode::getByName("Ball"));
}

void tst_PickingOnScreen::theViewsHoldOnACameraIsNoParent()
{
    QVERIFY(m_session.window().openFile(m_session.write("camera.iv", CameraScene)));
    m_session.selectNode("Eye");
    const QModelIndex row = m_session.visible<QTreeView>("sceneView")->currentIndex();
    QCOMPARE(row.siblingAtColumn(HostSceneModel::ParentsColumn).data().toInt(), 1);
}

TAVRIK_TEST_MAIN(tst_PickingOnScreen)
#include "tst_PickingOnScreen.moc"
