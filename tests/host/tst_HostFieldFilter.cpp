#include "lib/HostFieldModel.h"

#include "tests/support/TestMain.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/sensors/SoSensorManager.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <memory>

/** The filter as the model applies it to the fields of a node. */
class tst_HostFieldFilter : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theFilterLooksIntoNameTypeAndValue_data();
    void theFilterLooksIntoNameTypeAndValue();
    void anEmptyFilterListsAllAgain();
    void theFilterHoldsForTheNextNode();
    void aFieldThatIsFilteredOutHasNoRow();
    void aChangedValueIsFilteredAnew();
    void aChangedMasterIsFilteredAnew();
    void aChangeThatMovesNoRowResetsNothing();
    void aFilteredNodeMayDie();
    void manyValuesAreReadFromTheEventLoop();
    void aNodeWithManyUnreadValuesMayDie();

private:
    QStringList names() const;
    static SoNode* bigNode(int count);

    SoCone* m_cone = nullptr;
    std::unique_ptr<HostFieldModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void tst_HostFieldFilter::init()
{
    m_cone = new SoCone;
    m_cone->ref();
    m_model = std::make_unique<HostFieldModel>();
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    m_model->setNode(m_cone);
}

void tst_HostFieldFilter::cleanup()
{
    m_tester.reset();
    m_model.reset();
    if (m_cone)
        m_cone->unref();
    m_cone = nullptr;
    SoDB::getSensorManager()->processDelayQueue(TRUE);
}

QStringList tst_HostFieldFilter::names() const
{
    QStringList names;
    for (int row = 0; row < m_model->rowCount(); ++row)
        names << m_model->index(row, HostFieldModel::NameColumn).data().toString();
    return names;
}

void tst_HostFieldFilter::theFilterLooksIntoNameTypeAndValue_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QStringList>("shown");
    QTest::newRow("name") << "RAD" << QStringList{"bottomRadius"};
    QTest::newRow("type") << "float" << QStringList{"bottomRadius", "height"};
    QTest::newRow("value") << "bottom)" << QStringList{"parts"};
    QTest::newRow("name and value") << "Bottom" << QStringList{"bottomRadius", "parts"};
    QTest::newRow("pattern signs are letters") << ".*" << QStringList();
    QTest::newRow("not across the columns") << "heightSF" << QStringList();
}

void tst_HostFieldFilter::theFilterLooksIntoNameTypeAndValue()
{
    QFETCH(QString, filter);
    QFETCH(QStringList, shown);
    m_model->setFilter(filter);
    QCOMPARE(names(), shown);
}

void tst_HostFieldFilter::anEmptyFilterListsAllAgain()
{
    m_model->setFilter("height");
    m_model->setFilter("");
    QCOMPARE(m_model->rowCount(), 3);
}

void tst_HostFieldFilter::theFilterHoldsForTheNextNode()
{
    m_model->setFilter("height");
    auto* cube = new SoCube;
    cube->ref();
    m_model->setNode(cube);
    QCOMPARE(names(), QStringList{"height"});
    QCOMPARE(m_model->field(0), static_cast<SoField*>(&cube->height));
    cube->unref();
}

void tst_HostFieldFilter::aFieldThatIsFilteredOutHasNoRow()
{
    m_model->setFilter("height");
    QCOMPARE(m_model->row(&m_cone->height), 0);
    QCOMPARE(m_model->row(&m_cone->parts), -1);
    QVERIFY(!m_model->field(1));
}

void tst_HostFieldFilter::aChangedValueIsFilteredAnew()
{
    m_model->setFilter("42");
    QCOMPARE(names(), QStringList());
    m_cone->height = 42;
    SoDB::getSensorManager()->processDelayQueue(TRUE);
    QCOMPARE(names(), QStringList{"height"});
    m_cone->height = 7;
    SoDB::getSensorManager()->processDelayQueue(TRUE);
    QCOMPARE(names(), QStringList());
}

void tst_HostFieldFilter::aChangedMasterIsFilteredAnew()
{
    auto* cube = new SoCube;
    cube->ref();
    m_cone->height.connectFrom(&cube->width);
    m_model->setFilter("42");
    QCOMPARE(names(), QStringList());
    cube->width = 42;
    SoDB::getSensorManager()->processDelayQueue(TRUE);
    QCOMPARE(names(), QStringList{"height"});
    m_cone->height.disconnect();
    cube->unref();
}

void tst_HostFieldFilter::aChangeThatMovesNoRowResetsNothing()
{
    m_model->setFilter("height");
    QSignalSpy reset(m_model.get(), SIGNAL(modelReset()));
    m_cone->height = 42;
    SoDB::getSensorManager()->processDelayQueue(TRUE);
    QCOMPARE(reset.count(), 0);
    QCOMPARE(m_model->index(0, HostFieldModel::ValueColumn).data().toString(), QString("42"));
}

void tst_HostFieldFilter::aFilteredNodeMayDie()
{
    m_model->setFilter("2");
    m_cone->height = 42;
    m_cone->unref();
    m_cone = nullptr;
    QCOMPARE(m_model->rowCount(), 0);
    SoDB::getSensorManager()->processDelayQueue(TRUE);
    m_model->setFilter("");
    QCOMPARE(m_model->rowCount(), 0);
}

/** A node with this many fields, referenced. */
SoNode* tst_HostFieldFilter::bigNode(int count)
{
    QByteArray types;
    QByteArray values;
    for (int i = 0; i < count; ++i) {
        const QByteArray name = "f" + QByteArray::number(i);
        types += QByteArray(i > 0 ? ", " : "") + "SFString " + name;
        values += name + " \"text\"\n";
    }
    const QByteArray scene =
        "#Inventor V2.1 ascii\nGadget { fields [ " + types + " ]\n" + values + "}\n";
    SoInput input;
    input.setBuffer(scene.constData(), size_t(scene.size()));
    SoSeparator* root = SoDB::readAll(&input);
    root->ref();
    SoNode* node = root->getChild(0);
    node->ref();
    root->unref();
    return node;
}

void tst_HostFieldFilter::manyValuesAreReadFromTheEventLoop()
{
    SoNode* node = bigNode(1000);
    m_model->setNode(node);
    m_model->setFilter("text");
    QVERIFY(m_model->rowCount() < 1000);
    QTRY_COMPARE(m_model->rowCount(), 1000);
    m_model->setFilter("f99");
    QCOMPARE(m_model->rowCount(), 11);
    node->unref();
}

void tst_HostFieldFilter::aNodeWithManyUnreadValuesMayDie()
{
    SoNode* node = bigNode(1000);
    m_model->setNode(node);
    m_model->setFilter("text");
    node->unref();
    QCOMPARE(m_model->rowCount(), 0);
    QTest::qWait(20);
    QCOMPARE(m_model->rowCount(), 0);
}

TAVRIK_TEST_MAIN(tst_HostFieldFilter)
#include "tst_HostFieldFilter.moc"
