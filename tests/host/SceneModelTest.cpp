#include "tests/host/SceneModelTest.h"

#include <Inventor/SoDB.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/sensors/SoSensorManager.h>

namespace {

QString dump(const QAbstractItemModel& model, const QModelIndex& parent, int depth)
{
    QString text;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        text += QString(depth, ' ') + index.data().toString() + ' ' +
                index.siblingAtColumn(1).data().toString() + '\n' + dump(model, index, depth + 1);
    }
    return text;
}

QString dump(const SoNode& node, int depth)
{
    QString text = QString(depth, ' ') + node.getTypeId().getName().getString() + ' ' +
                   node.getName().getString() + '\n';
    const SoChildList* children = node.getChildren();
    for (int i = 0; children && i < children->getLength(); ++i)
        text += dump(*(*children)[i], depth + 1);
    return text;
}

} // namespace

void SceneModelTest::init()
{
    m_root = new SoSeparator;
    m_root->ref();
    m_model = std::make_unique<HostSceneModel>();
}

void SceneModelTest::cleanup()
{
    m_tester.reset();
    m_model.reset();
    if (m_root)
        m_root->unref();
    m_root = nullptr;
    runSensors();
}

void SceneModelTest::watch()
{
    m_model->setRoot(m_root);
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
}

QModelIndex SceneModelTest::row(std::initializer_list<int> rows) const
{
    QModelIndex index = m_model->index(0, 0);
    for (int at : rows)
        index = m_model->index(at, 0, index);
    return index;
}

QString SceneModelTest::shownTree() const
{
    return dump(*m_model, {}, 0);
}

QString SceneModelTest::sceneTree() const
{
    return dump(*m_root, 0);
}

void SceneModelTest::runSensors()
{
    SoDB::getSensorManager()->processDelayQueue(TRUE);
}

SoCube* SceneModelTest::namedCube(const char* name)
{
    SoCube* cube = new SoCube;
    cube->setName(name);
    return cube;
}
