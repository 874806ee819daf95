#include "FieldEditors/TvkMFSetFieldValueCommand.h"
#include "FieldEditors/TvkMFSetValueCommand.h"
#include "FieldEditors/TvkSFSetValueCommand.h"
#include "tests/support/FieldBits.h"
#include "tests/support/FieldTexts.h"
#include "tests/support/NotificationCounter.h"
#include "tests/support/TestMain.h"

#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoCube.h>

#include <limits>

namespace {

void addHardStrings()
{
    QTest::addColumn<QByteArray>("string");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("backslash at the end") << QByteArray("C:\\scenes\\");
    QTest::newRow("only a backslash") << QByteArray("\\");
    QTest::newRow("quotes") << QByteArray("say \"hello\"");
    QTest::newRow("quote before a line break") << QByteArray("a\"\nb");
    QTest::newRow("line breaks") << QByteArray("first\nsecond\n");
    QTest::newRow("beyond ASCII") << QByteArray("\xc3\xa4 \xe2\x82\xac \xf0\x9d\x84\x9e");
    QTest::newRow("Latin-1 bytes") << QByteArray("gr\xfcn");
    QTest::newRow("like a list") << QByteArray("[ \"a\", \"b\" ]");
    QTest::newRow("comment") << QByteArray("a # b");
}

QByteArray bytes(const SbString& text)
{
    return QByteArray(text.getString(), text.getLength());
}

} // namespace

/** The commands that write values. */
class tst_FieldCommands : public QObject
{
    Q_OBJECT

private slots:
    void undoRestoresTheTextBeforeAndRedoTheTextRead();
    void keepsTheCallersStringEmptied();
    void keepsTheCallersStringOfARowEmptied();
    void keepsAToggledBoolToggledWhenUndone();
    void keepsARowAsWrittenWhenThereIsNoTextBefore();
    void keepsTheNewTextForTheExecution();
    void keepsReadingAColourTwiceAfterTheWrite();
    void keepsTheExecutionOfAColourEmpty();
    void undoKeepsEveryBitOfAVector();
    void anyStringComesBack_data() { addHardStrings(); }
    void anyStringComesBack();
    void anyStringOfARowComesBack_data() { addHardStrings(); }
    void anyStringOfARowComesBack();
    void aNodeGivesWayToNoneAgain();
    void aRefusedTextNotifies();
    void aRefusedTextOfARowNotifies();
};

void tst_FieldCommands::undoRestoresTheTextBeforeAndRedoTheTextRead()
{
    SoSFFloat field;
    SbString before("1.5");
    field.setValue(3.0F);
    TvkSFSetValueCommand command(&field, before);
    command.execute();
    command.undo();
    QCOMPARE(textOf(field), QByteArray("1.5"));
    command.redo();
    QCOMPARE(textOf(field), QByteArray("3"));
}

void tst_FieldCommands::keepsTheCallersStringEmptied()
{
    SoSFFloat field;
    SbString before("1.5");
    const TvkSFSetValueCommand command(&field, before);
    QCOMPARE(before.getLength(), 0);
}

void tst_FieldCommands::keepsTheCallersStringOfARowEmptied()
{
    SoMFFloat field;
    SbString before("1.5");
    const TvkMFSetValueCommand command(&field, 0, before);
    QCOMPARE(before.getLength(), 0);
}

void tst_FieldCommands::keepsAToggledBoolToggledWhenUndone()
{
    SoSFBool field;
    field.setValue(FALSE);
    SbString noText;
    field.setValue(TRUE);
    TvkSFSetValueCommand command(&field, noText);
    command.execute();
    command.undo();
    QVERIFY(field.getValue());
    command.redo();
    QVERIFY(field.getValue());
}

void tst_FieldCommands::keepsARowAsWrittenWhenThereIsNoTextBefore()
{
    SoMFFloat field;
    field.set("[ 1, 2 ]");
    SbString noText;
    field.set1Value(1, 5.0F);
    TvkMFSetValueCommand command(&field, 1, noText);
    command.execute();
    command.undo();
    QCOMPARE(textOf(field), QByteArray("[ 1, 5 ]"));
}

void tst_FieldCommands::keepsTheNewTextForTheExecution()
{
    SoSFInt32 field;
    SbString before("1");
    field.setValue(2);
    TvkSFSetValueCommand command(&field, before);
    field.setValue(3);
    command.execute();
    command.undo();
    command.redo();
    QCOMPARE(textOf(field), QByteArray("3"));
}

void tst_FieldCommands::keepsReadingAColourTwiceAfterTheWrite()
{
    SoMFColor field;
    field.set("[ 0 0 0, 1 1 1 ]");
    field.set1Value(1, SbColor(1.0F, 0.0F, 0.0F));
    TvkMFSetFieldValueCommand command(&field, 1);
    command.execute();
    field.set1Value(1, SbColor(0.0F, 1.0F, 0.0F));
    command.undo();
    QCOMPARE(textOf(field), QByteArray("[ 0 0 0, 1 0 0 ]"));
    field.set1Value(1, SbColor(0.0F, 1.0F, 0.0F));
    command.redo();
    QCOMPARE(textOf(field), QByteArray("[ 0 0 0, 1 0 0 ]"));
}

void tst_FieldCommands::keepsTheExecutionOfAColourEmpty()
{
    SoMFColor field;
    field.set("[ 1 0 0 ]");
    TvkMFSetFieldValueCommand command(&field, 0);
    field.set1Value(0, SbColor(0.0F, 1.0F, 0.0F));
    command.execute();
    QCOMPARE(textOf(field), QByteArray("0 1 0"));
    command.redo();
    QCOMPARE(textOf(field), QByteArray("1 0 0"));
}

void tst_FieldCommands::undoKeepsEveryBitOfAVector()
{
    SoSFVec3f field;
    field.setValue(123.81744384765625F, -std::numeric_limits<float>::infinity(), 3.0F);
    const QByteArray written = bitsOf(field);
    SbString noText;
    TvkSFSetValueCommand command(&field, noText);
    command.execute();
    field.setValue(1.0F, 2.0F, 3.0F);
    command.undo();
    QCOMPARE(bitsOf(field), written);
    field.setValue(1.0F, 2.0F, 3.0F);
    command.redo();
    QCOMPARE(bitsOf(field), written);
}

void tst_FieldCommands::anyStringComesBack()
{
    QFETCH(QByteArray, string);
    SoSFString field;
    field.setValue(SbString(string.constData()));
    SbString before;
    field.get(before);
    field.setValue("other");
    TvkSFSetValueCommand command(&field, before);
    command.execute();
    command.undo();
    QCOMPARE(bytes(field.getValue()), string);
    command.redo();
    QCOMPARE(bytes(field.getValue()), QByteArray("other"));
}

void tst_FieldCommands::anyStringOfARowComesBack()
{
    QFETCH(QByteArray, string);
    SoMFString field;
    field.set1Value(0, "first");
    field.set1Value(1, SbString("other"));
    SbString before;
    field.get1(1, before);
    field.set1Value(1, SbString(string.constData()));
    TvkMFSetValueCommand command(&field, 1, before);
    command.execute();
    command.undo();
    QCOMPARE(bytes(field[1]), QByteArray("other"));
    command.redo();
    QCOMPARE(bytes(field[1]), string);
    QCOMPARE(bytes(field[0]), QByteArray("first"));
}

void tst_FieldCommands::aNodeGivesWayToNoneAgain()
{
    SoSFNode field;
    SbString before;
    field.get(before);
    field.setValue(new SoCube);
    TvkSFSetValueCommand command(&field, before);
    command.execute();
    command.undo();
    QVERIFY(!field.getValue());
    command.redo();
    QVERIFY(field.getValue() && field.getValue()->isOfType(SoCube::getClassTypeId()));
}

void tst_FieldCommands::aRefusedTextNotifies()
{
    SoSFVec3f field;
    field.setValue(1.0F, 2.0F, 3.0F);
    SbString before("4 5");
    TvkSFSetValueCommand command(&field, before);
    command.execute();
    NotificationCounter counter(field);
    command.undo();
    QCOMPARE(counter.take(), 1);
    command.redo();
    QCOMPARE(textOf(field), QByteArray("1 2 3"));
}

void tst_FieldCommands::aRefusedTextOfARowNotifies()
{
    SoMFVec3f field;
    field.set("[ 1 2 3, 4 5 6 ]");
    SbString before("none");
    TvkMFSetValueCommand command(&field, 1, before);
    command.execute();
    NotificationCounter counter(field);
    command.undo();
    QCOMPARE(counter.take(), 1);
    QCOMPARE(field.getNum(), 2);
}

TAVRIK_TEST_MAIN(tst_FieldCommands)
#include "tst_FieldCommands.moc"
