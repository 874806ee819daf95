#include "tests/host/SceneModelTest.h"
#include "tests/support/TestMain.h"

#include <Inventor/SoPath.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QSignalSpy>

#include <random>
#include <vector>

namespace {

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

/** Edits of a scene that nobody foresaw, the same in every run; it keeps the groups alive. */
class RandomEdits
{
public:
    explicit RandomEdits(SoSeparator& root) : m_groups{&root}
    {
        root.ref();
        for (int i = 0; i < 12; ++i) {
            m_groups.push_back(new SoSeparator);
            m_groups.back()->ref();
        }
    }
    ~RandomEdits()
    {
        for (SoSeparator* group : m_groups)
            group->unref();
    }
    RandomEdits(const RandomEdits&) = delete;
    RandomEdits& operator=(const RandomEdits&) = delete;

    int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }

    void makeOne()
    {
        const int at = below(groupCount() - 1);
        SoSeparator& group = *m_groups[static_cast<size_t>(at)];
        SoNode* child = childFor(at);
        child->ref();
        edit(group, child);
        child->unref();
    }

private:
    int groupCount() const { return static_cast<int>(m_groups.size()); }

    /** A new node, or a group of a higher number: so no circle can come about. */
    SoNode* childFor(int group)
    {
        if (below(3) > 0)
            return new SoCube;
        const int above = group + 1;
        return m_groups[static_cast<size_t>(above + below(groupCount() - above))];
    }

    void edit(SoSeparator& group, SoNode* child)
    {
        const int count = group.getNumChildren();
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
    }

    std::mt19937 m_random{20240229};
    std::vector<SoSeparator*> m_groups;
};

} // namespace

/** Wide, deep and much edited scenes. */
class tst_HostSceneModelSizes : public SceneModelTest
{
    Q_OBJECT

private slots:
    void aWideGroupAnnouncesAScreenfulAndThenTheRest();
    void aPathFarDownAWideGroupIsFoundAtOnce();
    void aVeryDeepSceneIsWalked();
    void randomEditsEndInTheSameTree();
};

void tst_HostSceneModelSizes::aWideGroupAnnouncesAScreenfulAndThenTheRest()
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

void tst_HostSceneModelSizes::aPathFarDownAWideGroupIsFoundAtOnce()
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

void tst_HostSceneModelSizes::aVeryDeepSceneIsWalked()
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

void tst_HostSceneModelSizes::randomEditsEndInTheSameTree()
{
    RandomEdits edits(*m_root);
    watch();
    for (int edit = 1; edit <= 1000; ++edit) {
        edits.makeOne();
        if (edits.below(3) > 0)
            runSensors();
        if (edit % 50 == 0) {
            runSensors();
            QCOMPARE(shownTree(), sceneTree());
        }
    }
}

TAVRIK_TEST_MAIN(tst_HostSceneModelSizes)
#include "tst_HostSceneModelSizes.moc"
