#include "lib/HostFullPath.h"

#include "tests/host/SceneModelTest.h"
#include "tests/support/TestMain.h"

#include <Inventor/SoPath.h>
#include <Inventor/VRMLnodes/SoVRMLTransform.h>
#include <Inventor/nodekits/SoShapeKit.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSphere.h>
#include <Inventor/nodes/SoSwitch.h>

#include <QSignalSpy>

/** What the rows say of the scene, and how a path leads to a row. */
class tst_HostSceneModel : public SceneModelTest
{
    Q_OBJECT

private slots:
    void noRootHasNoRows();
    void showsTypeNameAndParents();
    void followsTheScenesOwnTree();
    void nodeKitsAndVrmlNodesShowTheirChildren();
    void sharedNodesAreMarkedBelowEachParent();
    void theHostsOwnParentIsNotCounted();
    void aPathLeadsToItsRowAndBack();
    void aPathLeadsIntoANodeKit();
    void aPathOfAnotherSceneHasNoRow();
};

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
    QCOMPARE(shownTree(), sceneTree());
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
    QCOMPARE(shownTree(), sceneTree());
    QVERIFY(shownTree().contains("Cube kitcube"));
    QVERIFY(shownTree().contains("Cube vrmlchild"));
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

TAVRIK_TEST_MAIN(tst_HostSceneModel)
#include "tst_HostSceneModel.moc"
