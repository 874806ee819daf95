#include "tests/host/SceneModelTest.h"
#include "tests/support/TestMain.h"

#include <Inventor/SoDB.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSphere.h>
#include <Inventor/sensors/SoSensorManager.h>

#include <QSignalSpy>
#include <QTreeView>

/** How the rows follow a scene that changes below them. */
class tst_HostSceneModelChanges : public SceneModelTest
{
    Q_OBJECT

private slots:
    void theDeathOfTheRootEmptiesTheModelAtOnce();
    void aRemovedNodeAnswersNothingBeforeTheSensorRuns();
    void aSilentRemovalAnswersNothing();
    void onlyTheChangedRowsAreAnnounced();
    void selectionElsewhereSurvivesAReplacement();
    void aLeafThatGetsItsFirstChildCanBeExpanded();
    void aGroupThatNobodyOpenedAndThatLosesItsChildrenCannotBeExpanded();
    void changesOfPlainValuesAnnounceNothing();
    void aTouchedNodeShowsItsNewName();
    void aSlotThatEditsTheSceneIsFollowed();
    void aSlotThatClosesTheSceneIsFollowed();
};

void tst_HostSceneModelChanges::theDeathOfTheRootEmptiesTheModelAtOnce()
{
    m_root->addChild(namedCube("box"));
    watch();
    QCOMPARE(m_model->rowCount(row({})), 1);
    QSignalSpy resets(m_model.get(), SIGNAL(modelReset()));
    m_root->unref();
    m_root = nullptr;
    QCOMPARE(resets.count(), 1);
    QCOMPARE(m_model->rowCount(), 0);
    QVERIFY(!m_model->root());
}

void tst_HostSceneModelChanges::aRemovedNodeAnswersNothingBeforeTheSensorRuns()
{
    SoSeparator* group = new SoSeparator;
    group->addChild(namedCube("box"));
    m_root->addChild(group);
    watch();
    const QPersistentModelIndex box = row({0, 0});
    QCOMPARE(box.sibling(0, 1).data().toString(), QString("box"));
    m_root->removeAllChildren();
    QVERIFY(box.isValid());
    QVERIFY(!m_model->node(box));
    QVERIFY(!box.data().isValid());
    QVERIFY(!m_model->path(box));
    runSensors();
    QVERIFY(!box.isValid());
    QCOMPARE(shownTree(), sceneTree());
}

void tst_HostSceneModelChanges::aSilentRemovalAnswersNothing()
{
    SoSeparator* group = new SoSeparator;
    group->addChild(namedCube("box"));
    m_root->addChild(group);
    watch();
    const QModelIndex box = row({0, 0});
    m_root->enableNotify(FALSE);
    m_root->removeAllChildren();
    m_root->enableNotify(TRUE);
    QVERIFY(!m_model->node(box));
    QCOMPARE(m_model->rowCount(row({})), 1);
    m_model->catchUp();
    QCOMPARE(m_model->rowCount(row({})), 0);
}

void tst_HostSceneModelChanges::onlyTheChangedRowsAreAnnounced()
{
    for (int i = 0; i < 10; ++i)
        m_root->addChild(new SoCube);
    watch();
    QCOMPARE(m_model->rowCount(row({})), 10);
    QSignalSpy removed(m_model.get(), SIGNAL(rowsRemoved(QModelIndex, int, int)));
    QSignalSpy inserted(m_model.get(), SIGNAL(rowsInserted(QModelIndex, int, int)));
    m_root->replaceChild(4, new SoSphere);
    m_root->removeChild(5);
    runSensors();
    QCOMPARE(removed.count(), 1);
    QCOMPARE(removed[0][1].toInt(), 4);
    QCOMPARE(removed[0][2].toInt(), 5);
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted[0][1].toInt(), 4);
    QCOMPARE(inserted[0][2].toInt(), 4);
}

void tst_HostSceneModelChanges::selectionElsewhereSurvivesAReplacement()
{
    SoSeparator* group = new SoSeparator;
    group->addChild(namedCube("kept"));
    m_root->addChild(new SoSphere);
    m_root->addChild(group);
    watch();
    QTreeView view;
    view.setModel(m_model.get());
    view.expandAll();
    view.setCurrentIndex(row({1, 0}));
    m_root->insertChild(new SoMaterial, 0);
    m_root->replaceChild(1, new SoCube);
    runSensors();
    QCOMPARE(view.currentIndex().sibling(0, 1).data().toString(), QString("kept"));
    QVERIFY(view.isExpanded(row({2})));
}

void tst_HostSceneModelChanges::aLeafThatGetsItsFirstChildCanBeExpanded()
{
    SoSeparator* group = new SoSeparator;
    m_root->addChild(group);
    watch();
    QVERIFY(!m_model->hasChildren(row({0})));
    QSignalSpy inserted(m_model.get(), SIGNAL(rowsInserted(QModelIndex, int, int)));
    group->addChild(namedCube("first"));
    runSensors();
    QCOMPARE(inserted.count(), 1);
    QVERIFY(m_model->hasChildren(row({0})));
    QCOMPARE(shownTree(), sceneTree());
}

void tst_HostSceneModelChanges::aGroupThatNobodyOpenedAndThatLosesItsChildrenCannotBeExpanded()
{
    SoSeparator* group = new SoSeparator;
    group->addChild(new SoCube);
    m_root->addChild(group);
    m_model->setRoot(m_root);
    QVERIFY(m_model->hasChildren(row({0})));
    QSignalSpy removed(m_model.get(), SIGNAL(rowsRemoved(QModelIndex, int, int)));
    group->removeAllChildren();
    runSensors();
    QCOMPARE(removed.count(), 1);
    QVERIFY(!m_model->hasChildren(row({0})));
}

void tst_HostSceneModelChanges::changesOfPlainValuesAnnounceNothing()
{
    SoCube* cube = namedCube("box");
    m_root->addChild(cube);
    watch();
    QCOMPARE(m_model->rowCount(row({})), 1);
    QSignalSpy changed(m_model.get(), SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    cube->width = 7;
    QVERIFY(!SoDB::getSensorManager()->isDelaySensorPending());
    runSensors();
    QCOMPARE(changed.count(), 0);
}

void tst_HostSceneModelChanges::aTouchedNodeShowsItsNewName()
{
    SoCube* cube = namedCube("before");
    m_root->addChild(cube);
    watch();
    QCOMPARE(m_model->rowCount(row({})), 1);
    QSignalSpy changed(m_model.get(), SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    cube->setName("after");
    cube->touch();
    runSensors();
    QVERIFY(changed.count() > 0);
    QCOMPARE(row({0}).siblingAtColumn(1).data().toString(), QString("after"));
}

void tst_HostSceneModelChanges::aSlotThatEditsTheSceneIsFollowed()
{
    m_root->addChild(new SoCube);
    m_root->addChild(new SoSphere);
    m_model->setRoot(m_root);
    QCOMPARE(m_model->rowCount(row({})), 2);
    bool isDone = false;
    connect(m_model.get(), &QAbstractItemModel::rowsRemoved, this, [this, &isDone] {
        if (!isDone)
            m_root->removeAllChildren();
        isDone = true;
    });
    m_root->replaceChild(0, new SoMaterial);
    runSensors();
    runSensors();
    QVERIFY(isDone);
    QCOMPARE(m_model->rowCount(row({})), 0);
}

void tst_HostSceneModelChanges::aSlotThatClosesTheSceneIsFollowed()
{
    m_root->addChild(new SoCube);
    m_model->setRoot(m_root);
    QCOMPARE(m_model->rowCount(row({})), 1);
    connect(m_model.get(), &QAbstractItemModel::rowsInserted, this,
            [this] { m_model->setRoot(nullptr); });
    m_root->addChild(new SoMaterial);
    runSensors();
    QCOMPARE(m_model->rowCount(), 0);
}

TAVRIK_TEST_MAIN(tst_HostSceneModelChanges)
#include "tst_HostSceneModelChanges.moc"
