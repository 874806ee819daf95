#include "FieldEditors/DvNumericRanges.h"

#include "tests/support/TestMain.h"

class tst_DvNumericRanges : public QObject
{
    Q_OBJECT

private slots:
    void everyRowIsFound_data();
    void everyRowIsFound();
    void thereAreSevenRows();
    void otherNamesHaveNoRow_data();
    void otherNamesHaveNoRow();
    void theSameRowIsAnsweredEachTime();
};

void tst_DvNumericRanges::everyRowIsFound_data()
{
    QTest::addColumn<QByteArray>("node");
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<char>("kind");
    QTest::addColumn<bool>("bounded");
    const auto add = [](const char* node, const char* field, double maximum, char kind, bool b) {
        QTest::newRow(field) << QByteArray(node) << QByteArray(field) << maximum << kind << b;
    };
    add("DefaultNode", "floatField", 10.0, 'f', false);
    add("DefaultNode", "doubleField", 10.0, 'd', false);
    add("DefaultNode", "intField", 100.0, 'i', false);
    add("Complexity", "value", 1.0, 'f', true);
    add("Complexity", "textureQuality", 1.0, 'f', true);
    add("DirectionalLight", "intensity", 1.0, 'f', true);
    add("Material", "transparency", 1.0, 'f', true);
}

void tst_DvNumericRanges::everyRowIsFound()
{
    QFETCH(QByteArray, node);
    QFETCH(QByteArray, field);
    const DvNumericRanges::Range* const range =
        DvNumericRanges::find(node.constData(), field.constData());
    QVERIFY(range);
    QCOMPARE(range->minimum, 0.0);
    QTEST(range->maximum, "maximum");
    QTEST(range->kind, "kind");
    QTEST(range->bounded, "bounded");
}

void tst_DvNumericRanges::thereAreSevenRows()
{
    QCOMPARE(DvNumericRanges::rowCount, 7);
}

void tst_DvNumericRanges::otherNamesHaveNoRow_data()
{
    QTest::addColumn<QByteArray>("node");
    QTest::addColumn<QByteArray>("field");
    const auto add = [](const char* row, const char* node, const char* field) {
        QTest::newRow(row) << QByteArray(node) << QByteArray(field);
    };
    add("empty", "", "");
    add("unknown node", "Cone", "height");
    add("unknown field", "Material", "shininess");
    add("another node's field", "Material", "intensity");
    add("other case", "material", "transparency");
    add("names exchanged", "transparency", "Material");
    add("parted elsewhere", "DefaultNodefloat", "Field");
}

void tst_DvNumericRanges::otherNamesHaveNoRow()
{
    QFETCH(QByteArray, node);
    QFETCH(QByteArray, field);
    QVERIFY(!DvNumericRanges::find(node.constData(), field.constData()));
}

void tst_DvNumericRanges::theSameRowIsAnsweredEachTime()
{
    QCOMPARE(DvNumericRanges::find("Complexity", "value"),
             DvNumericRanges::find("Complexity", "value"));
}

TAVRIK_TEST_MAIN(tst_DvNumericRanges)
#include "tst_DvNumericRanges.moc"
