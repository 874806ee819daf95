#include "scenegraph/SoFieldText.h"

#include "scenegraph/SoSFFilePathString.h"

#include "tests/support/NotificationCounter.h"
#include "tests/support/ReportLog.h"
#include "tests/support/TestMain.h"

#include <Inventor/fields/SoFields.h>

#include <QRandomGenerator>

namespace {

/** What Coin's reader is known to lose, and what it might. */
const QByteArrayList awkwardStrings = {
    "",    "plain", "a b",      "\\",         "a\\", "a\\\\", "\\\"", "\"",
    "a\"", "\"\n",  "a\"\nb\\", "\"\\\n\"\\", "]",   "[ a",   "a, b", "#a",
    "a\n", "\n\\",  "\", \"",   "x\", ]",     "ä€𝄞", "\xe4\\"};

QByteArray randomString(QRandomGenerator& generator)
{
    static const QByteArray characters = "a\\\" \n#[],";
    QByteArray string;
    for (int i = generator.bounded(7); i > 0; --i)
        string += characters[generator.bounded(characters.size())];
    return string;
}

QByteArrayList manyStrings()
{
    QByteArrayList strings = awkwardStrings;
    QRandomGenerator generator(1);
    for (int i = 0; i < 3000; ++i)
        strings << randomString(generator);
    return strings;
}

SbString textOf(SoField& field)
{
    SbString text;
    field.get(text);
    return text;
}

} // namespace

/** That no string and no name is lost on the way through its text. */
class tst_SoFieldTextOfStrings : public QObject
{
    Q_OBJECT

private slots:
    void everyStringComesBackFromItsText();
    void everyNameComesBackFromItsText();
    void everyFilePathComesBackFromItsText();
    void everyStringComesBackFromTheTextOfItsRow();
    void everyNameComesBackFromTheTextOfItsRow();
    void everyListOfStringsComesBackFromItsText();
    void everyListOfNamesComesBackFromItsText();
    void aTextThatIsNotQuotedIsLeftToTheField();
    void aListThatNoFieldWroteIsLeftToTheField();
    void aFieldOfStringsMayHoldTheWordNull();
    void aListOfStringsNotifiesOnce();
};

void tst_SoFieldTextOfStrings::everyStringComesBackFromItsText()
{
    ReportLog log;
    for (const QByteArray& string : manyStrings()) {
        SoSFString field;
        field.setValue(string.constData());
        const SbString text = textOf(field);
        field.setValue("changed");
        QVERIFY(SoFieldText::set(&field, text));
        QCOMPARE(QByteArray(field.getValue().getString()), string);
    }
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoFieldTextOfStrings::everyNameComesBackFromItsText()
{
    ReportLog log;
    for (const QByteArray& string : manyStrings()) {
        SoSFName field;
        field.setValue(SbName(string.constData()));
        const SbString text = textOf(field);
        field.setValue(SbName("changed"));
        QVERIFY(SoFieldText::set(&field, text));
        QCOMPARE(QByteArray(field.getValue().getString()), string);
    }
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoFieldTextOfStrings::everyFilePathComesBackFromItsText()
{
    for (const QByteArray& string : awkwardStrings) {
        SoSFFilePathString field;
        field.setValue(string.constData());
        const SbString text = textOf(field);
        field.setValue("changed");
        QVERIFY(SoFieldText::set(&field, text));
        QCOMPARE(QByteArray(field.getValue().getString()), string);
    }
}

void tst_SoFieldTextOfStrings::everyStringComesBackFromTheTextOfItsRow()
{
    ReportLog log;
    SoMFString field;
    field.setNum(3);
    for (const QByteArray& string : manyStrings()) {
        field.set1Value(1, string.constData());
        SbString text;
        field.get1(1, text);
        field.set1Value(1, "changed");
        QVERIFY(SoFieldText::set1(&field, 1, text));
        QCOMPARE(QByteArray(field[1].getString()), string);
    }
    QCOMPARE(field.getNum(), 3);
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoFieldTextOfStrings::everyNameComesBackFromTheTextOfItsRow()
{
    SoMFName field;
    field.setNum(3);
    for (const QByteArray& string : awkwardStrings) {
        field.set1Value(1, SbName(string.constData()));
        SbString text;
        field.get1(1, text);
        field.set1Value(1, SbName("changed"));
        QVERIFY(SoFieldText::set1(&field, 1, text));
        QCOMPARE(QByteArray(field[1].getString()), string);
    }
}

void tst_SoFieldTextOfStrings::everyListOfStringsComesBackFromItsText()
{
    ReportLog log;
    const QByteArrayList strings = manyStrings();
    QRandomGenerator generator(2);
    for (int round = 0; round < 1000; ++round) {
        SoMFString field;
        field.setNum(generator.bounded(5));
        for (int row = 0; row < field.getNum(); ++row)
            field.set1Value(row, strings[generator.bounded(strings.size())].constData());
        const SbString text = textOf(field);
        SoMFString copy;
        copy.setNum(2);
        QVERIFY2(SoFieldText::set(&copy, text), text.getString());
        QVERIFY2(copy == field, text.getString());
    }
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoFieldTextOfStrings::everyListOfNamesComesBackFromItsText()
{
    SoMFName field;
    for (int row = 0; row < awkwardStrings.size(); ++row)
        field.set1Value(row, SbName(awkwardStrings[row].constData()));
    SoMFName copy;
    QVERIFY(SoFieldText::set(&copy, textOf(field)));
    QVERIFY(copy == field);
}

void tst_SoFieldTextOfStrings::aTextThatIsNotQuotedIsLeftToTheField()
{
    SoSFString field;
    QVERIFY(SoFieldText::set(&field, "word"));
    QCOMPARE(field.getValue().getString(), "word");
    QVERIFY(SoFieldText::set(&field, "\"one\" \"two\""));
    QCOMPARE(field.getValue().getString(), "one");
}

void tst_SoFieldTextOfStrings::aListThatNoFieldWroteIsLeftToTheField()
{
    SoMFString field;
    QVERIFY(SoFieldText::set(&field, "[ word , \"b\", ]"));
    QCOMPARE(field.getNum(), 2);
    QCOMPARE(field[0].getString(), "word");
    ReportLog log;
    QVERIFY(!SoFieldText::set(&field, "[ \"a\", \"b"));
    QVERIFY(!log.taken().isEmpty());
}

void tst_SoFieldTextOfStrings::aFieldOfStringsMayHoldTheWordNull()
{
    SoSFString field;
    QVERIFY(SoFieldText::set(&field, "NULL"));
    QCOMPARE(field.getValue().getString(), "NULL");
}

void tst_SoFieldTextOfStrings::aListOfStringsNotifiesOnce()
{
    SoMFString field;
    QCOMPARE(notificationsOf(field, [&] { SoFieldText::set(&field, "[ \"a\\\",\n    \"b\" ]"); }),
             1);
    QCOMPARE(field.getNum(), 2);
    QVERIFY(!field.isDefault());
    QVERIFY(field.isNotifyEnabled());
}

TAVRIK_TEST_MAIN(tst_SoFieldTextOfStrings)
#include "tst_SoFieldTextOfStrings.moc"
