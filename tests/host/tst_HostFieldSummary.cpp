#include "lib/HostFieldSummary.h"

#include "tests/support/SceneTypes.h"
#include "tests/support/TestMain.h"

#include <Inventor/SoPath.h>
#include <Inventor/engines/SoCalculator.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoSeparator.h>

class tst_HostFieldSummary : public QObject
{
    Q_OBJECT

private slots:
    void singleValuesAreShownAsCoinWritesThem_data();
    void singleValuesAreShownAsCoinWritesThem();
    void stringsKeepTheirQuotesInOneLine();
    void bytesThatAreNoUtf8AreShownAsLatin1();
    void aNodeIsNamedAndNotWritten();
    void pathsAndEnginesAreNamed();
    void anImageIsShownByItsSize();
    void anEnumValueWithoutNameIsShownAsNumber();
    void multipleValuesBeginWithTheirNumber();
    void aLongFieldIsCut();
    void aLongTextIsCut();
    void everyFieldTypeThatCanBeMadeIsShown_data();
    void everyFieldTypeThatCanBeMadeIsShown();
};

void tst_HostFieldSummary::singleValuesAreShownAsCoinWritesThem_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("shown");
    QTest::newRow("vector") << "SFVec3f"
                            << "1 2.5 3"
                            << "1 2.5 3";
    QTest::newRow("truth value") << "SFBool"
                                 << "TRUE"
                                 << "TRUE";
    QTest::newRow("string") << "SFString"
                            << "\"a \\\"b\\\"\""
                            << "\"a \\\"b\\\"\"";
    QTest::newRow("matrix") << "SFMatrix"
                            << "1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 1"
                            << "1 0 0 0 0 1 0 0 0 0 1 0 2 3 4 1";
}

void tst_HostFieldSummary::singleValuesAreShownAsCoinWritesThem()
{
    QFETCH(QString, type);
    QFETCH(QString, value);
    const SoType fieldType = SoType::fromName(type.toUtf8().constData());
    const std::unique_ptr<SoField> field(static_cast<SoField*>(fieldType.createInstance()));
    QVERIFY(field->set(value.toUtf8().constData()));
    QTEST(HostFieldSummary::text(*field), "shown");
}

void tst_HostFieldSummary::stringsKeepTheirQuotesInOneLine()
{
    SoSFString field;
    field.setValue("first\nsecond");
    QCOMPARE(HostFieldSummary::text(field), QString("\"first second\""));
    field.setValue("");
    QCOMPARE(HostFieldSummary::text(field), QString("\"\""));
}

void tst_HostFieldSummary::bytesThatAreNoUtf8AreShownAsLatin1()
{
    SoSFString field;
    field.setValue("caf\xe9");
    QCOMPARE(HostFieldSummary::text(field), QString::fromUtf8("\"café\""));
    field.setValue("caf\xc3\xa9");
    QCOMPARE(HostFieldSummary::text(field), QString::fromUtf8("\"café\""));
}

void tst_HostFieldSummary::aNodeIsNamedAndNotWritten()
{
    SoSFNode field;
    QCOMPARE(HostFieldSummary::text(field), QString("NULL"));
    SoSeparator* scene = new SoSeparator;
    scene->addChild(new SoCube);
    field.setValue(scene);
    QCOMPARE(HostFieldSummary::text(field), QString("Separator"));
    scene->setName("lamp");
    QCOMPARE(HostFieldSummary::text(field), QString("Separator lamp"));
    SoMFNode nodes;
    nodes.set1Value(0, scene);
    nodes.set1Value(1, new SoCube);
    QCOMPARE(HostFieldSummary::text(nodes), QString("[2] Separator lamp, Cube"));
}

void tst_HostFieldSummary::pathsAndEnginesAreNamed()
{
    SoSFPath pathField;
    QCOMPARE(HostFieldSummary::text(pathField), QString("NULL"));
    SoSeparator* scene = new SoSeparator;
    scene->addChild(new SoCube);
    SoPath* path = new SoPath(scene);
    path->append(0);
    pathField.setValue(path);
    QCOMPARE(HostFieldSummary::text(pathField), QString("Path to Cube"));
    SoSFEngine engineField;
    QCOMPARE(HostFieldSummary::text(engineField), QString("NULL"));
    SoCalculator* engine = new SoCalculator;
    engine->setName("sum");
    engineField.setValue(engine);
    QCOMPARE(HostFieldSummary::text(engineField), QString("Calculator sum"));
}

void tst_HostFieldSummary::anImageIsShownByItsSize()
{
    SoSFImage field;
    const std::vector<unsigned char> bytes(64 * 32 * 3, 7);
    field.setValue(SbVec2s(64, 32), 3, bytes.data());
    QCOMPARE(HostFieldSummary::text(field), QString("64 x 32 x 3"));
    SoSFImage3 image3;
    image3.setValue(SbVec3s(4, 2, 8), 1, bytes.data());
    QCOMPARE(HostFieldSummary::text(image3), QString("4 x 2 x 8 x 1"));
}

void tst_HostFieldSummary::anEnumValueWithoutNameIsShownAsNumber()
{
    SoSFEnum field;
    field.setValue(42);
    QCOMPARE(HostFieldSummary::text(field), QString("42"));
}

void tst_HostFieldSummary::multipleValuesBeginWithTheirNumber()
{
    SoMFVec3f field;
    field.setNum(0);
    QCOMPARE(HostFieldSummary::text(field), QString("[0]"));
    field.set1Value(0, 1, 2, 3);
    QCOMPARE(HostFieldSummary::text(field), QString("[1] 1 2 3"));
    field.set1Value(1, 4, 5, 6);
    QCOMPARE(HostFieldSummary::text(field), QString("[2] 1 2 3, 4 5 6"));
}

void tst_HostFieldSummary::aLongFieldIsCut()
{
    SoMFInt32 field;
    field.setNum(1000000);
    int32_t* values = field.startEditing();
    std::fill(values, values + 1000000, 7);
    field.finishEditing();
    const QString text = HostFieldSummary::text(field);
    QVERIFY(text.startsWith("[1000000] 7, 7, 7"));
    QVERIFY(text.endsWith(QChar(0x2026)));
    QCOMPARE(text.size(), HostFieldSummary::s_maximalLength);
}

void tst_HostFieldSummary::aLongTextIsCut()
{
    SoSFString field;
    field.setValue(QByteArray(5000, 'x').constData());
    const QString text = HostFieldSummary::text(field);
    QVERIFY(text.endsWith(QString("x") + QChar(0x2026)));
    QCOMPARE(text.size(), HostFieldSummary::s_maximalLength);
}

void tst_HostFieldSummary::everyFieldTypeThatCanBeMadeIsShown_data()
{
    addTypeRows(creatableTypes(SoField::getClassTypeId()));
}

void tst_HostFieldSummary::everyFieldTypeThatCanBeMadeIsShown()
{
    const std::unique_ptr<SoField> field(newOfRowType<SoField>());
    const QString empty = HostFieldSummary::text(*field);
    QVERIFY(!empty.contains('\n'));
    if (!field->isOfType(SoMField::getClassTypeId()))
        return;
    QVERIFY2(empty.startsWith("[0]"), qUtf8Printable(empty));
    static_cast<SoMField&>(*field).insertSpace(0, 2);
    if (field->isOfType(SoMFNode::getClassTypeId()) ||
        field->isOfType(SoMFPath::getClassTypeId()) ||
        field->isOfType(SoMFEngine::getClassTypeId()))
        return;
    QVERIFY(HostFieldSummary::text(*field).startsWith("[2] "));
}

TAVRIK_TEST_MAIN(tst_HostFieldSummary)
#include "tst_HostFieldSummary.moc"
