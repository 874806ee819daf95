#include "lib/HostFieldModel.h"

#include "tests/support/TestMain.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/engines/SoCalculator.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoInfo.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/sensors/SoSensorManager.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTextDocument>

#include <cstring>

class tst_HostFieldModel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void noNodeHasNoRows();
    void headersNameTheColumns();
    void theNarrowColumnsAreToldInFull();
    void listsTheFieldsInTheOrderOfDeclaration();
    void fieldsAndRowsFindEachOther();
    void marksDefaultIgnoredAndConnected();
    void theToolTipNamesWhereAValueComesFrom();
    void theToolTipNamesTheEngine();
    void aToolTipShowsHtmlAsItIsWritten();
    void aChangeIsAnnouncedWhenTheQueueRuns();
    void aConnectionIsAnnounced();
    void theDeathOfTheNodeEmptiesTheModelAtOnce();
    void itsDeathIsTold();
    void fieldsOfAnUnknownNodeAreListed();

private:
    QString text(int row, HostFieldModel::Column column) const;

    SoCone* m_cone = nullptr;
    std::unique_ptr<HostFieldModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

void tst_HostFieldModel::init()
{
    m_cone = new SoCone;
    m_cone->ref();
    m_model = std::make_unique<HostFieldModel>();
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    m_model->setNode(m_cone);
}

void tst_HostFieldModel::cleanup()
{
    m_tester.reset();
    m_model.reset();
    if (m_cone)
        m_cone->unref();
    m_cone = nullptr;
    SoDB::getSensorManager()->processDelayQueue(TRUE);
}

QString tst_HostFieldModel::text(int row, HostFieldModel::Column column) const
{
    return m_model->index(row, column).data().toString();
}

void tst_HostFieldModel::noNodeHasNoRows()
{
    m_model->setNode(nullptr);
    QCOMPARE(m_model->rowCount(), 0);
    QVERIFY(!m_model->field(0));
    QVERIFY(!m_model->node());
}

void tst_HostFieldModel::headersNameTheColumns()
{
    QStringList titles;
    for (int column = 0; column < m_model->columnCount(); ++column)
        titles << m_model->headerData(column, Qt::Horizontal).toString();
    QCOMPARE(titles, QStringList({"Name", "Type", "Value", "D", "I", "C"}));
}

void tst_HostFieldModel::theNarrowColumnsAreToldInFull()
{
    const QStringList names{"Default", "Ignored", "Connected"};
    for (int i = 0; i < names.size(); ++i) {
        const int column = HostFieldModel::DefaultColumn + i;
        const auto header = [&](int role) {
            return m_model->headerData(column, Qt::Horizontal, role).toString();
        };
        QCOMPARE(header(Qt::AccessibleTextRole), names[i]);
        QVERIFY(header(Qt::ToolTipRole).startsWith(names[i] + ": "));
    }
    const QModelIndex isDefault = m_model->index(1, HostFieldModel::DefaultColumn);
    QCOMPARE(isDefault.data(Qt::AccessibleTextRole).toString(), QString("Default"));
    QVERIFY(!isDefault.data(Qt::ToolTipRole).toString().isEmpty());
    m_cone->height = 7;
    QCOMPARE(isDefault.data(Qt::AccessibleTextRole).toString(), QString());
    QVERIFY(!isDefault.data(Qt::ToolTipRole).isValid());
}

void tst_HostFieldModel::listsTheFieldsInTheOrderOfDeclaration()
{
    QCOMPARE(m_model->rowCount(), 3);
    QCOMPARE(text(0, HostFieldModel::NameColumn), QString("bottomRadius"));
    QCOMPARE(text(1, HostFieldModel::NameColumn), QString("height"));
    QCOMPARE(text(2, HostFieldModel::NameColumn), QString("parts"));
    QCOMPARE(text(1, HostFieldModel::TypeColumn), QString("SFFloat"));
    QCOMPARE(text(1, HostFieldModel::ValueColumn), QString("2"));
    QCOMPARE(text(2, HostFieldModel::ValueColumn), QString("(SIDES | BOTTOM)"));
}

void tst_HostFieldModel::fieldsAndRowsFindEachOther()
{
    QCOMPARE(m_model->field(1), static_cast<SoField*>(&m_cone->height));
    QCOMPARE(m_model->row(&m_cone->height), 1);
    QCOMPARE(m_model->row(nullptr), -1);
    QVERIFY(!m_model->field(3));
    QVERIFY(!m_model->field(-1));
}

void tst_HostFieldModel::marksDefaultIgnoredAndConnected()
{
    const QString check(QChar(0x2713));
    QCOMPARE(text(1, HostFieldModel::DefaultColumn), check);
    QCOMPARE(text(1, HostFieldModel::IgnoredColumn), QString());
    QCOMPARE(text(1, HostFieldModel::ConnectedColumn), QString());
    m_cone->height = 5;
    m_cone->height.setIgnored(TRUE);
    m_cone->height.connectFrom(&m_cone->bottomRadius);
    QCOMPARE(text(1, HostFieldModel::DefaultColumn), QString());
    QCOMPARE(text(1, HostFieldModel::IgnoredColumn), check);
    QCOMPARE(text(1, HostFieldModel::ConnectedColumn), check);
    m_cone->height.disconnect();
}

void tst_HostFieldModel::theToolTipNamesWhereAValueComesFrom()
{
    SoCube* cube = new SoCube;
    cube->ref();
    cube->setName("box");
    m_cone->height.connectFrom(&cube->width);
    const QModelIndex index = m_model->index(1, HostFieldModel::ConnectedColumn);
    QCOMPARE(index.data(Qt::ToolTipRole).toString(), QString("Connected from Cube box, width"));
    m_cone->height.disconnect();
    QVERIFY(!index.data(Qt::ToolTipRole).isValid());
    cube->unref();
}

void tst_HostFieldModel::theToolTipNamesTheEngine()
{
    SoCalculator* engine = new SoCalculator;
    engine->expression = "oa = 3";
    m_cone->height.connectFrom(&engine->oa);
    const QModelIndex index = m_model->index(1, HostFieldModel::ConnectedColumn);
    QCOMPARE(index.data(Qt::ToolTipRole).toString(), QString("Connected from Calculator, oa"));
    QCOMPARE(text(1, HostFieldModel::ValueColumn), QString("3"));
}

void tst_HostFieldModel::aToolTipShowsHtmlAsItIsWritten()
{
    auto* info = new SoInfo;
    info->ref();
    info->string = "<b>bold</b>";
    m_model->setNode(info);
    const QString tip =
        m_model->index(0, HostFieldModel::ValueColumn).data(Qt::ToolTipRole).toString();
    QTextDocument document;
    document.setHtml(tip);
    QCOMPARE(document.toPlainText(), QString("\"<b>bold</b>\""));
    info->unref();
}

void tst_HostFieldModel::aChangeIsAnnouncedWhenTheQueueRuns()
{
    QSignalSpy changed(m_model.get(), SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    m_cone->height = 7;
    m_cone->height = 8;
    QCOMPARE(changed.count(), 0);
    SoDB::getSensorManager()->processDelayQueue(TRUE);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(text(1, HostFieldModel::ValueColumn), QString("8"));
}

void tst_HostFieldModel::aConnectionIsAnnounced()
{
    QSignalSpy changed(m_model.get(), SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    m_cone->height.connectFrom(&m_cone->bottomRadius);
    SoDB::getSensorManager()->processDelayQueue(TRUE);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(text(1, HostFieldModel::ConnectedColumn), QString(QChar(0x2713)));
    m_cone->height.disconnect();
    QCOMPARE(text(1, HostFieldModel::ConnectedColumn), QString());
}

void tst_HostFieldModel::theDeathOfTheNodeEmptiesTheModelAtOnce()
{
    m_cone->unref();
    m_cone = nullptr;
    QCOMPARE(m_model->rowCount(), 0);
    QVERIFY(!m_model->node());
}

void tst_HostFieldModel::itsDeathIsTold()
{
    QSignalSpy gone(m_model.get(), SIGNAL(nodeGone()));
    m_model->setNode(nullptr);
    m_model->setNode(m_cone);
    QCOMPARE(gone.count(), 0);
    m_cone->unref();
    m_cone = nullptr;
    QCOMPARE(gone.count(), 1);
}

void tst_HostFieldModel::fieldsOfAnUnknownNodeAreListed()
{
    const char scene[] = "#Inventor V2.1 ascii\n"
                         "Gadget { fields [ SFFloat weight, MFString labels ]\n"
                         "         weight 3.5 labels [ \"a\", \"b\" ] }";
    SoInput input;
    input.setBuffer(scene, std::strlen(scene));
    SoSeparator* root = SoDB::readAll(&input);
    QVERIFY(root);
    root->ref();
    m_model->setNode(root->getChild(0));
    QCOMPARE(m_model->rowCount(), 2);
    QCOMPARE(text(0, HostFieldModel::NameColumn), QString("weight"));
    QCOMPARE(text(0, HostFieldModel::ValueColumn), QString("3.5"));
    QCOMPARE(text(1, HostFieldModel::ValueColumn), QString("[2] \"a\", \"b\""));
    root->unref();
    QCOMPARE(m_model->rowCount(), 0);
}

TAVRIK_TEST_MAIN(tst_HostFieldModel)
#include "tst_HostFieldModel.moc"
