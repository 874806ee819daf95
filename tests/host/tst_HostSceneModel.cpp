#include "lib/HostSceneModel.h"

#include "lib/HostFullPath.h"

#include "tests/support/TestMain.h"

#include <Inventor/SoDB.h>
#include <Inventor/VRMLnodes/SoVRMLTransform.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodekits/SoShapeKit.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSphere.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/sensors/SoSensorManager.h>

#include <QAbstractItemModelTester>
#include <QItemSelectionModel>
#include <QSignalSpy>
#include <QTreeView>

#include <random>

namespace {

void runSensors()
{
    SoDB::getSensorManager()->processDelayQueue(TRUE);
}

/** The shown tree as text, one indented line a row. */
QString dump(const QAbstractItemModel& model, const QModelIndex& parent = {}, int depth = 0)
{
    QString text;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        text += QString(depth, ' ') + index.data().toString() + ' ' +
                index.siblingAtColumn(1).data().toString() + '\n' + dump(model, index, depth + 1);
    }
    return text;
}

/** The scene itself in the same form. */
QString dump(const SoNode& node, int depth = 0)
{
    QString text = QString(depth, ' ') + node.getTypeId().getName().getString() + ' ' +
                   node.getName().getString() + '\n';
    const SoChildList* children = node.getChildren();
    for (int i = 0; children && i < children->getLength(); ++i)
        text += dump(*(*children)[i], depth + 1);
    return text;
}

SoCube* namedCube(const char* name)
{
    SoCube* cube = new SoCube;
    cube->setName(name);
    return cube;
}

/** A chain of groups, built from its end: Coin tells every node above about each addition. */
SoSeparator* chain(int depth)
{
    SoSeparator* top = new SoSeparator;
    for (int i = 1; i < depth; ++i) {
        SoSeparator* above = new SoSeparator;
        above->addChild(top);
        top = above;
    }
    return top;
}

/** Takes a chain apart from its top: Coin would destroy one link inside the other. */
void dismantle(SoSeparator* top)
{
    while (top->getNumChildren() > 0) {
        auto next = static_cast<SoSeparator*>(top->getChild(0));
        next->ref();
        top->removeAllChildren();
        top->unref();
        top = next;
    }
    top->unref();
}

} // namespace

class tst_HostSceneModel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void noRootHasNoRows();
    void showsTypeNameAndParents();
    void followsTheScenesOwnTree();
    void nodeKitsAndVrmlNodesShowTheirChildren();
    void sharedNodesAreMarkedBelowEachParent();
    void theHostsOwnParentIsNotCounted();
    void aPathLeadsToItsRowAndBack();
    void aPathLeadsIntoANodeKit();
    void aPathOfAnotherSceneHasNoRow();
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
    void aWideGroupAnnouncesAScreenfulAndThenTheRest();
    void aPathFarDownAWideGroupIsFoundAtOnce();
    void aVeryDeepSceneIsWalked();
    void randomEditsEndInTheSameTree();

private:
    void watch();
    QModelIndex row(std::initializer_list<int> rows) const;

    SoSeparator* m_root = nullptr;
    std::unique_ptr<HostSceneModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void tst_HostSceneModel::init()
{
    m_root = new SoSeparator;
    m_root->ref();
    m_model = std::make_unique<HostSceneModel>();
}

void tst_HostSceneModel::cleanup()
{
    m_tester.reset();
    m_model.reset();
    if (m_root)
        m_root->unref();
    m_root = nullptr;
    runSensors();
}

/** From here on every answer of the model is checked for consistency. */
void tst_HostSceneModel::watch()
{
    m_model->setRoot(m_root);
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
}

QModelIndex tst_HostSceneModel::row(std::initializer_list<int> rows) const
{
    QModelIndex index = m_model->index(0, 0);
    for (int at : rows)
        index = m_model->index(at, 0, index);
    return index;
}

void tst_HostSceneModel::noRootHasNoRows()
{
    QCOMPARE(m_model->rowCount(), 0);
    QVERIFY(!m_model->hasChildren());
    QVERIFY(!m_model->index(0, 0).isValid());
    QVERIFY(!m_model->path(QModelIndex()));
}

void tst_HostSceneModel::showsTypeNameAndParents()
{
    m_root->addChild(namedCube("box"));
    watch();
    QCOMPARE(m_model->headerData(0, Qt::Horizontal).toString(), QString("Type"));
    QCOMPARE(m_model->headerData(1, Qt::Horizontal).toString(), QString("Name"));
    QCOMPARE(m_model->headerData(2, Qt::Horizontal).toString(), QString("Parents"));
    QCOMPARE(row({0}).data().toString(), QString("Cube"));
    QCOMPARE(row({0}).siblingAtColumn(1).data().toString(), QString("box"));
    QCOMPARE(row({0}).siblingAtColumn(2).data().toInt(), 1);
    QCOMPARE(row({}).siblingAtColumn(2).data().toInt(), 0);
}

void tst_HostSceneModel::followsTheScenesOwnTree()
{
    SoSwitch* choice = new SoSwitch;
    choice->addChild(namedCube("a"));
    choice->addChild(new SoSphere);
    m_root->addChild(choice);
    m_root->addChild(new SoMaterial);
    watch();
    QCOMPARE(dump(*m_model), dump(*m_root));
}

void tst_HostSceneModel::nodeKitsAndVrmlNodesShowTheirChildren()
{
    SoShapeKit* kit = new SoShapeKit;
    kit->setPart("shape", namedCube("kitcube"));
    SoVRMLTransform* transform = new SoVRMLTransform;
    transform->addChild(namedCube("vrmlchild"));
    m_root->addChild(kit);
    m_root->addChild(transform);
    watch();
    QCOMPARE(dump(*m_model), dump(*m_root));
    QVERIFY(dump(*m_model).contains("Cube kitcube"));
    QVERIFY(dump(*m_model).contains("Cube vrmlchild"));
}

void tst_HostSceneModel::sharedNodesAreMarkedBelowEachParent()
{
    SoCube* shared = namedCube("shared");
    for (int i = 0; i < 3; ++i) {
        SoSeparator* group = new SoSeparator;
        group->addChild(shared);
        m_root->addChild(group);
    }
    m_root->addChild(new SoSphere);
    watch();
    for (int i = 0; i < 3; ++i) {
        const QModelIndex index = row({i, 0});
        QCOMPARE(index.siblingAtColumn(2).data().toInt(), 3);
        QCOMPARE(index.data(Qt::ToolTipRole).toString(), QString("Shared by 3 parents"));
        QVERIFY(index.data(Qt::FontRole).value<QFont>().italic());
        QVERIFY(!index.data(Qt::DecorationRole).value<QIcon>().isNull());
    }
    QVERIFY(!row({3}).data(Qt::ToolTipRole).isValid());
    QVERIFY(!row({3}).data(Qt::FontRole).isValid());
    QVERIFY(!row({3}).data(Qt::DecorationRole).isValid());
}

void tst_HostSceneModel::theHostsOwnParentIsNotCounted()
{
    SoSeparator* view = new SoSeparator;
    view->ref();
    view->addChild(m_root);
    watch();
    QCOMPARE(row({}).siblingAtColumn(2).data().toInt(), 1);
    QSignalSpy changed(m_model.get(), SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    m_model->setOwnParent(view);
    QCOMPARE(row({}).siblingAtColumn(2).data().toInt(), 0);
    QCOMPARE(changed.count(), 1);
    view->unref();
}

void tst_HostSceneModel::aPathLeadsToItsRowAndBack()
{
    SoSeparator* group = new SoSeparator;
    group->addChild(new SoMaterial);
    group->addChild(namedCube("box"));
    m_root->addChild(new SoSphere);
    m_root->addChild(group);
    watch();
    SoPath* path = m_model->path(row({1, 1}));
    path->ref();
    QCOMPARE(path->getLength(), 3);
    QCOMPARE(path->getTail()->getName().getString(), "box");
    QCOMPARE(m_model->index(*path), row({1, 1}));
    path->unref();
}

void tst_HostSceneModel::aPathLeadsIntoANodeKit()
{
    SoShapeKit* kit = new SoShapeKit;
    SoCube* cube = namedCube("kitcube");
    kit->setPart("shape", cube);
    m_root->addChild(kit);
    watch();
    QModelIndex index = row({0});
    while (m_model->node(index) != cube) {
        QVERIFY(m_model->hasChildren(index));
        index = m_model->index(m_model->rowCount(index) - 1, 0, index);
    }
    SoPath* path = m_model->path(index);
    path->ref();
    QCOMPARE(HostFullPath::tail(*path), static_cast<SoNode*>(cube));
    QCOMPARE(m_model->index(*path), index);
    path->unref();
}

void tst_HostSceneModel::aPathOfAnotherSceneHasNoRow()
{
    watch();
    SoPath* path = new SoPath(new SoSeparator);
    path->ref();
    QVERIFY(!m_model->index(*path).isValid());
    path->unref();
}

void tst_HostSceneModel::theDeathOfTheRootEmptiesTheModelAtOnce()
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

void tst_HostSceneModel::aRemovedNodeAnswersNothingBeforeTheSensorRuns()
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
    QCOMPARE(dump(*m_model), dump(*m_root));
}

void tst_HostSceneModel::aSilentRemovalAnswersNothing()
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

void tst_HostSceneModel::onlyTheChangedRowsAreAnnounced()
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

void tst_HostSceneModel::selectionElsewhereSurvivesAReplacement()
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

void tst_HostSceneModel::aLeafThatGetsItsFirstChildCanBeExpanded()
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
    QCOMPARE(dump(*m_model), dump(*m_root));
}

void tst_HostSceneModel::aGroupThatNobodyOpenedAndThatLosesItsChildrenCannotBeExpanded()
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

void tst_HostSceneModel::changesOfPlainValuesAnnounceNothing()
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

void tst_HostSceneModel::aTouchedNodeShowsItsNewName()
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

void tst_HostSceneModel::aSlotThatEditsTheSceneIsFollowed()
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

void tst_HostSceneModel::aSlotThatClosesTheSceneIsFollowed()
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

void tst_HostSceneModel::aWideGroupAnnouncesAScreenfulAndThenTheRest()
{
    for (int i = 0; i < 100000; ++i)
        m_root->addChild(new SoCube);
    m_model->setRoot(m_root);
    QCOMPARE(m_model->rowCount(row({})), 200);
    QSignalSpy inserted(m_model.get(), SIGNAL(rowsInserted(QModelIndex, int, int)));
    QTRY_COMPARE(m_model->rowCount(row({})), 100000);
    QCOMPARE(inserted.count(), 1);
    QCOMPARE(inserted[0][1].toInt(), 200);
    QCOMPARE(row({99999}).data().toString(), QString("Cube"));
}

void tst_HostSceneModel::aPathFarDownAWideGroupIsFoundAtOnce()
{
    for (int i = 0; i < 5000; ++i)
        m_root->addChild(new SoCube);
    m_model->setRoot(m_root);
    SoPath* path = new SoPath(m_root);
    path->ref();
    path->append(4321);
    QCOMPARE(m_model->index(*path).row(), 4321);
    path->unref();
}

void tst_HostSceneModel::aVeryDeepSceneIsWalked()
{
    const int depth = 10000;
    SoSeparator* deep = chain(depth);
    deep->ref();
    m_model->setRoot(deep);
    QModelIndex index = m_model->index(0, 0);
    for (int level = 1; level < depth; ++level)
        index = m_model->index(0, 0, index);
    QVERIFY(m_model->node(index));
    QVERIFY(!m_model->hasChildren(index));
    m_model->setRoot(nullptr);
    dismantle(deep);
}

void tst_HostSceneModel::randomEditsEndInTheSameTree()
{
    std::mt19937 random(20240229);
    const auto below = [&random](int end) { return int(random() % unsigned(end)); };
    std::vector<SoSeparator*> groups{m_root};
    for (int i = 0; i < 12; ++i) {
        groups.push_back(new SoSeparator);
        groups.back()->ref();
    }
    watch();
    for (int edit = 0; edit < 1000; ++edit) {
        // Children go only into groups of a lower number: no circle can come about.
        const int at = below(12);
        SoSeparator& group = *groups[size_t(at)];
        const int count = group.getNumChildren();
        SoNode* child = new SoCube;
        child->ref();
        if (below(3) == 0) {
            child->unref();
            child = groups[size_t(at + 1 + below(12 - at))];
            child->ref();
        }
        switch (count < 2 ? 0 : count > 5 ? 1 : below(4)) {
        case 0:
            group.insertChild(child, below(count + 1));
            break;
        case 1:
            group.removeChild(below(count));
            break;
        case 2:
            group.replaceChild(below(count), child);
            break;
        default:
            if (below(10) == 0)
                group.removeAllChildren();
        }
        child->unref();
        if (below(3) > 0)
            runSensors();
        if (edit % 50 == 0) {
            runSensors();
            QCOMPARE(dump(*m_model), dump(*m_root));
        }
    }
    runSensors();
    QCOMPARE(dump(*m_model), dump(*m_root));
    for (size_t i = 1; i < groups.size(); ++i)
        groups[i]->unref();
}

TAVRIK_TEST_MAIN(tst_HostSceneModel)
#include "tst_HostSceneModel.moc"
