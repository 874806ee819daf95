#include "scenegraph/SoFieldText.h"

#include "tests/support/FieldBits.h"
#include "tests/support/NotificationCounter.h"
#include "tests/support/ReportLog.h"
#include "tests/support/TestMain.h"

#include <Inventor/SoPath.h>
#include <Inventor/engines/SoCalculator.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoCone.h>

#include <limits>
#include <memory>

namespace {

SbString textOf(SoField& field)
{
    SbString text;
    field.get(text);
    return text;
}

} // namespace

class tst_SoFieldText : public QObject
{
    Q_OBJECT

private slots:
    void aNullNodeComesBack();
    void aNullEngineComesBack();
    void aNullPathComesBack();
    void aNullRowOfNodesOrEnginesComesBack();
    void coloursComeBackWithTheirAlpha();
    void theExtremesOfARowOfRealsAreReadToTheLastBit();
    void anEmptyImageComesBack();
    void aRefusedTextTouchesTheField();
    void aRefusedTextOfARowTouchesTheField();
    void anAcceptedTextNotifiesOnce();
    void aTextOfNumbersIsReadByTheField();
    void aNameThatCoinCannotHoldIsRefused();
    void aNumberComesBackToTheLastBit_data();
    void aNumberComesBackToTheLastBit();
    void wholeNumbersComeBack();
    void theExtremesOfAVectorComeBack_data();
    void theExtremesOfAVectorComeBack();
    void theExtremesOfARowComeBack_data() { theExtremesOfAVectorComeBack_data(); }
    void theExtremesOfARowComeBack();
    void componentsComeBackToTheLastBit();
    void rowsOfNumbersComeBackToTheLastBit();
    void aTextOfAnotherLengthIsNoVector_data();
    void aTextOfAnotherLengthIsNoVector();
    void aFieldOfAFieldWithoutAContainerIsRead();
};

void tst_SoFieldText::aFieldOfAFieldWithoutAContainerIsRead()
{
    SoMFInt32 master;
    master.set("[1, 2, 3]");
    SoMFString slave;
    QVERIFY(slave.connectFrom(&master));
    SbString text;
    SoFieldText::get1(&slave, 2, text);
    QCOMPARE(text.getString(), "\"3\"");
    master.set1Value(0, 7);
    SoFieldText::get(&slave, text);
    QCOMPARE(QByteArray(text.getString()).simplified(), QByteArray("[ \"7\", \"2\", \"3\" ]"));
    QVERIFY(slave.isConnected());
}

void tst_SoFieldText::aNullNodeComesBack()
{
    ReportLog log;
    SoSFNode field;
    const SbString text = textOf(field);
    QCOMPARE(text.getString(), "NULL");
    field.setValue(new SoCone);
    QVERIFY(SoFieldText::set(&field, text));
    QVERIFY(!field.getValue());
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoFieldText::aNullEngineComesBack()
{
    SoSFEngine field;
    const SbString text = textOf(field);
    field.setValue(new SoCalculator);
    QVERIFY(SoFieldText::set(&field, text));
    QVERIFY(!field.getValue());
}

void tst_SoFieldText::aNullPathComesBack()
{
    SoSFPath field;
    const SbString text = textOf(field);
    SoCone* cone = new SoCone;
    field.setValue(new SoPath(cone));
    QVERIFY(SoFieldText::set(&field, text));
    QVERIFY(!field.getValue());
}

void tst_SoFieldText::aNullRowOfNodesOrEnginesComesBack()
{
    ReportLog log;
    SoMFNode nodes;
    nodes.set1Value(0, new SoCone);
    nodes.set1Value(1, new SoCone);
    QVERIFY(SoFieldText::set1(&nodes, 1, "NULL"));
    QVERIFY(nodes[0] && !nodes[1]);
    SoMFEngine engines;
    engines.set1Value(0, new SoCalculator);
    QVERIFY(SoFieldText::set1(&engines, 0, "NULL"));
    QVERIFY(!engines[0]);
    SoMFPath paths;
    paths.set1Value(0, new SoPath(new SoCone));
    QVERIFY(SoFieldText::set1(&paths, 0, "NULL"));
    QVERIFY(!paths[0]);
    QVERIFY(SoFieldText::set(&nodes, "NULL"));
    QCOMPARE(nodes.getNum(), 1);
    QVERIFY(!nodes[0]);
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoFieldText::coloursComeBackWithTheirAlpha()
{
    SoMFColorRGBA field;
    QVERIFY(SoFieldText::set(&field, "[ 0 0 0 0.25,\n    1 1 1 0.5 ]"));
    QCOMPARE(textOf(field).getString(), "[ 0 0 0 0.25,\n    1 1 1 0.5 ]");
    QVERIFY(SoFieldText::set1(&field, 1, "1 1 1 0.75"));
    QCOMPARE(field[1][3], 0.75f);
    QVERIFY(SoFieldText::set(&field, "1 0 1 0"));
    QCOMPARE(textOf(field).getString(), "1 0 1 0");
    QVERIFY(SoFieldText::set(&field, "[  ]"));
    QCOMPARE(field.getNum(), 0);
}

void tst_SoFieldText::theExtremesOfARowOfRealsAreReadToTheLastBit()
{
    ReportLog log;
    SoMFDouble doubles;
    doubles.setNum(2);
    doubles.set1Value(0, 1.0);
    // Coin's own reader makes 0 of it.
    QVERIFY(SoFieldText::set1(&doubles, 1, "1.7976931348623157e+308"));
    QCOMPARE(doubles[1], std::numeric_limits<double>::max());
    QCOMPARE(doubles[0], 1.0);
    SoMFFloat floats;
    floats.setNum(1);
    QVERIFY(SoFieldText::set1(&floats, 0, "inf"));
    QCOMPARE(floats[0], std::numeric_limits<float>::infinity());
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoFieldText::anEmptyImageComesBack()
{
    ReportLog log;
    SoSFImage field;
    field.setValue(SbVec2s(0, 0), 1, nullptr);
    const SbString text = textOf(field);
    const unsigned char pixel = 7;
    field.setValue(SbVec2s(1, 1), 1, &pixel);
    QVERIFY(SoFieldText::set(&field, text));
    QVERIFY(textOf(field) == text);
    QVERIFY(SoFieldText::set(&field, "1 1 1\n0x7"));
    QCOMPARE(textOf(field).getString(), "1 1 1\n0x7 ");
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoFieldText::aRefusedTextTouchesTheField()
{
    SoSFVec3f field;
    field.setValue(1, 2, 3);
    bool taken = true;
    QCOMPARE(notificationsOf(field, [&] { taken = SoFieldText::set(&field, "4 5"); }), 1);
    QVERIFY(!taken);
}

void tst_SoFieldText::aRefusedTextOfARowTouchesTheField()
{
    SoMFVec3f field;
    field.set1Value(0, 1, 2, 3);
    bool taken = true;
    QCOMPARE(notificationsOf(field, [&] { taken = SoFieldText::set1(&field, 0, "4 5"); }), 1);
    QVERIFY(!taken);
}

void tst_SoFieldText::anAcceptedTextNotifiesOnce()
{
    SoSFString string;
    QCOMPARE(notificationsOf(string, [&] { SoFieldText::set(&string, "\"a\\\""); }), 1);
    SoSFVec3f vector;
    QCOMPARE(notificationsOf(vector, [&] { SoFieldText::set(&vector, "1 2 3"); }), 1);
    SoMFString strings;
    strings.setNum(1);
    QCOMPARE(notificationsOf(strings, [&] { SoFieldText::set1(&strings, 0, "\"a\\\""); }), 1);
}

void tst_SoFieldText::aTextOfNumbersIsReadByTheField()
{
    SoSFVec3f field;
    QVERIFY(SoFieldText::set(&field, "1 2.5 3"));
    QCOMPARE(textOf(field).getString(), "1 2.5 3");
    SoMFFloat floats;
    QVERIFY(SoFieldText::set(&floats, "[ 1, 2 ]"));
    QVERIFY(SoFieldText::set1(&floats, 1, "7"));
    QCOMPARE(floats[1], 7.0f);
}

void tst_SoFieldText::aNameThatCoinCannotHoldIsRefused()
{
    const QByteArray longest(SoFieldText::longestName, 'n');
    SoSFName name;
    SoMFName names;
    names.setNum(1);
    for (const QByteArray& text : {longest, '"' + longest + '"'}) {
        name.setValue("before");
        QVERIFY(SoFieldText::set(&name, text.constData()));
        QVERIFY(SoFieldText::set1(&names, 0, text.constData()));
        QCOMPARE(name.getValue().getLength(), SoFieldText::longestName);
        QCOMPARE(names[0].getLength(), SoFieldText::longestName);
    }
    for (const QByteArray& text : {longest + 'n', '"' + longest + "n\""}) {
        QVERIFY(!SoFieldText::set(&name, text.constData()));
        QVERIFY(!SoFieldText::set1(&names, 0, text.constData()));
    }
    QCOMPARE(name.getValue().getLength(), SoFieldText::longestName);
    QCOMPARE(names[0].getLength(), SoFieldText::longestName);
}

void tst_SoFieldText::aNumberComesBackToTheLastBit_data()
{
    QTest::addColumn<double>("number");
    for (const double number :
         {0.0, -0.0, 0.1, 1e-7, -1234567.125, 3.141592653589793, 1e308,
          std::numeric_limits<double>::max(), std::numeric_limits<double>::denorm_min(),
          std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()})
        QTest::addRow("%g", number) << number;
}

void tst_SoFieldText::aNumberComesBackToTheLastBit()
{
    QFETCH(double, number);
    ReportLog log;
    SoSFDouble twice;
    SoSFFloat single;
    twice.setValue(number);
    single.setValue(static_cast<float>(number));
    const QByteArray twiceBits = bitsOf(twice);
    const QByteArray singleBits = bitsOf(single);
    for (SoField* field : {static_cast<SoField*>(&twice), static_cast<SoField*>(&single)}) {
        SbString text;
        SoFieldText::get(field, text);
        field->set("7");
        QVERIFY2(SoFieldText::set(field, text), text.getString());
    }
    QCOMPARE(bitsOf(twice), twiceBits);
    QCOMPARE(bitsOf(single), singleBits);
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoFieldText::wholeNumbersComeBack()
{
    SoSFInt32 signedNumber;
    SoSFUInt32 natural;
    signedNumber.setValue(std::numeric_limits<int32_t>::min());
    natural.setValue(std::numeric_limits<uint32_t>::max());
    SbString text;
    SoFieldText::get(&signedNumber, text);
    QCOMPARE(text.getString(), "-2147483648");
    QVERIFY(SoFieldText::set(&signedNumber, text));
    QCOMPARE(signedNumber.getValue(), std::numeric_limits<int32_t>::min());
    SoFieldText::get(&natural, text);
    QVERIFY(SoFieldText::set(&natural, text));
    QCOMPARE(natural.getValue(), std::numeric_limits<uint32_t>::max());
}

void tst_SoFieldText::theExtremesOfAVectorComeBack_data()
{
    QTest::addColumn<double>("extreme");
    QTest::addColumn<float>("single");
    using Single = std::numeric_limits<float>;
    using Double = std::numeric_limits<double>;
    QTest::newRow("largest") << Double::max() << Single::max();
    QTest::newRow("least") << -Double::max() << -Single::max();
    QTest::newRow("smallest") << Double::denorm_min() << Single::denorm_min();
    QTest::newRow("infinite") << Double::infinity() << Single::infinity();
    QTest::newRow("minus infinite") << -Double::infinity() << -Single::infinity();
    QTest::newRow("no number") << Double::quiet_NaN() << Single::quiet_NaN();
}

void tst_SoFieldText::theExtremesOfAVectorComeBack()
{
    QFETCH(double, extreme);
    QFETCH(float, single);
    ReportLog log;
    SoSFVec2f pair;
    pair.setValue(1.0F, single);
    SoSFVec3f triple;
    triple.setValue(single, 2.0F, 3.0F);
    SoSFVec4f four;
    four.setValue(1.0F, 2.0F, 3.0F, single);
    SoSFVec3d twice;
    twice.setValue(1.0, extreme, 3.0);
    SoSFColor color;
    color.setValue(0.5F, single, 1.0F);
    SoSFMatrix matrix;
    SbMatrix values = SbMatrix::identity();
    values[2][1] = single;
    matrix.setValue(values);
    SoField* const fields[] = {&pair, &triple, &four, &twice, &color, &matrix};
    for (SoField* field : fields) {
        const QByteArray bits = bitsOf(*field);
        const SbString text = textOf(*field);
        const std::unique_ptr<SoField> fresh(
            static_cast<SoField*>(field->getTypeId().createInstance()));
        QVERIFY2(SoFieldText::set(fresh.get(), text), text.getString());
        QCOMPARE(bitsOf(*fresh), bits);
    }
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoFieldText::theExtremesOfARowComeBack()
{
    QFETCH(double, extreme);
    ReportLog log;
    SoMFVec3d vectors;
    vectors.set1Value(0, 1.0, 2.0, 3.0);
    vectors.set1Value(1, 4.0, extreme, 6.0);
    SoMFDouble numbers;
    numbers.set1Value(0, 1.0);
    numbers.set1Value(1, extreme);
    for (SoMField* field : {static_cast<SoMField*>(&vectors), static_cast<SoMField*>(&numbers)}) {
        const QByteArray bits = bitsOf(*field);
        SbString text;
        field->get1(1, text);
        QVERIFY(SoFieldText::set1(field, 1, "7 8 9") || SoFieldText::set1(field, 1, "7"));
        QVERIFY2(SoFieldText::set1(field, 1, text), text.getString());
        QCOMPARE(bitsOf(*field), bits);
    }
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoFieldText::componentsComeBackToTheLastBit()
{
    // Coin's eight digits are the text of a neighbour of each.
    SoSFVec3f vector;
    vector.setValue(123.81744384765625F, -1001.29144287109375F, 105.06151580810547F);
    SoSFMatrix matrix;
    SbMatrix values = SbMatrix::identity();
    values[3][0] = 121.68333435058594F;
    matrix.setValue(values);
    SoSFVec3d twice;
    twice.setValue(0.1 + 0.2, 1.0 / 3.0, 123456789.123456789);
    for (SoField* field : {static_cast<SoField*>(&vector), static_cast<SoField*>(&matrix),
                           static_cast<SoField*>(&twice)}) {
        const QByteArray bits = bitsOf(*field);
        SbString text;
        SoFieldText::get(field, text);
        const std::unique_ptr<SoField> fresh(
            static_cast<SoField*>(field->getTypeId().createInstance()));
        QVERIFY2(SoFieldText::set(fresh.get(), text), text.getString());
        QCOMPARE(bitsOf(*fresh), bits);
        // Coin's own reader takes the text as well.
        QVERIFY2(fresh->set(text.getString()), text.getString());
    }
}

void tst_SoFieldText::rowsOfNumbersComeBackToTheLastBit()
{
    SoMFFloat floats;
    SoMFColor colors;
    SoMFVec2d pairs;
    for (int row = 0; row < 100; ++row) {
        const double number = 100.0 + row / 7.0;
        floats.set1Value(row, static_cast<float>(number));
        colors.set1Value(row, SbColor(static_cast<float>(number), 0.1F, 0.2F));
        pairs.set1Value(row, SbVec2d(number, 1.0 / number));
    }
    for (SoMField* field : {static_cast<SoMField*>(&floats), static_cast<SoMField*>(&colors),
                            static_cast<SoMField*>(&pairs)}) {
        const QByteArray bits = bitsOf(*field);
        for (int row = 0; row < 100; ++row) {
            SbString text;
            SoFieldText::get1(field, row, text);
            QVERIFY2(SoFieldText::set1(field, row, text), text.getString());
        }
        QCOMPARE(bitsOf(*field), bits);
    }
}

void tst_SoFieldText::aTextOfAnotherLengthIsNoVector_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char* text : {"", " ", "4", "4 5", "nan nan", "4,5,6", "4 5 6x", "four 5 6"})
        QTest::newRow(text) << QByteArray(text);
}

void tst_SoFieldText::aTextOfAnotherLengthIsNoVector()
{
    QFETCH(QByteArray, text);
    SoMFVec3f field;
    field.set1Value(0, 1.0F, 2.0F, 3.0F);
    const bool takenByCoin = field.set1(0, text.constData());
    field.set1Value(0, 1.0F, 2.0F, 3.0F);
    QCOMPARE(bool(SoFieldText::set1(&field, 0, text.constData())), takenByCoin);
    QCOMPARE(field.getNum(), 1);
}

TAVRIK_TEST_MAIN(tst_SoFieldText)
#include "tst_SoFieldText.moc"
