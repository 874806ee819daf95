#include "FieldEditors/TvkMFAddRowsCommand.h"
#include "FieldEditors/TvkMFDeleteRowsCommand.h"
#include "FieldEditors/TvkMFSwapRowsCommand.h"
#include "tests/support/FieldBits.h"
#include "tests/support/FieldTexts.h"
#include "tests/support/NotificationCounter.h"
#include "tests/support/StringRows.h"
#include "tests/support/TestMain.h"

#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoCube.h>

#include <cmath>
#include <limits>

namespace {

const QList<QByteArray> s_hardStrings = {"ends in \\", "a \"quote\"", "two\nlines",
                                         "\xc3\xa4 \xe2\x82\xac", ""};

/** Numbers that eight digits do not tell from their neighbours, and one that is none. */
void fillWithHardNumbers(SoMFVec3f& field)
{
    field.set1Value(0, 123.81744384765625F, 1001.29144287109375F, 1.0F);
    field.set1Value(1, 1.0F, std::numeric_limits<float>::quiet_NaN(), 105.06151580810547F);
    field.set1Value(2, 7.0F, 8.0F, 9.0F);
}

} // namespace

/** The commands that insert, delete and exchange rows. */
class tst_FieldRowCommands : public QObject
{
    Q_OBJECT

private slots:
    void aRowInsertedIntoAStringFieldIsEmpty();
    void rowsAreInsertedAtTheEnd();
    void rowsAreInsertedIntoAnEmptyField();
    void newRowsOfNumbersAreDefined();
    void keepsOneSummaryNotificationAfterTheRowsWrites();
    void keepsTheSummaryNotificationOfNoRows();

    void deletedRowsComeBackInTheirPlacesAndOrder();
    void allRowsComeBack();
    void deletedStringsComeBackByteForByte();
    void keepsANotificationForEachRowPutBack();
    void deletingNoRowsDoesNothing();

    void keepsSwapItsOwnInverse();
    void aRowSwappedWithItselfStays();
    void swappedStringsStayByteForByte();
    void swappedNumbersStayToTheLastBit();
    void deletedNumbersComeBackToTheLastBit();
    void aNodeSwappedWithNoneLeavesNone();
};

void tst_FieldRowCommands::aRowInsertedIntoAStringFieldIsEmpty()
{
    SoMFString field;
    fillWithStrings(field, {"0", "1", "2", "3", "4"});
    TvkMFAddRowsCommand command(&field, 4, 1);
    const QList<QByteArray> inserted = {"0", "1", "2", "3", "", "4"};
    command.execute();
    QCOMPARE(stringsOf(field), inserted);
    command.undo();
    QCOMPARE(stringsOf(field), QList<QByteArray>({"0", "1", "2", "3", "4"}));
    command.redo();
    QCOMPARE(stringsOf(field), inserted);
}

void tst_FieldRowCommands::rowsAreInsertedAtTheEnd()
{
    SoMFString field;
    fillWithStrings(field, {"0", "1"});
    TvkMFAddRowsCommand command(&field, 2, 3);
    command.execute();
    QCOMPARE(stringsOf(field), QList<QByteArray>({"0", "1", "", "", ""}));
    command.undo();
    QCOMPARE(stringsOf(field), QList<QByteArray>({"0", "1"}));
}

void tst_FieldRowCommands::rowsAreInsertedIntoAnEmptyField()
{
    SoMFString field;
    field.setNum(0);
    TvkMFAddRowsCommand command(&field, 0, 2);
    command.execute();
    QCOMPARE(stringsOf(field), QList<QByteArray>({"", ""}));
    command.undo();
    QCOMPARE(field.getNum(), 0);
}

void tst_FieldRowCommands::newRowsOfNumbersAreDefined()
{
    SoMFVec3f field;
    field.setNum(0);
    TvkMFAddRowsCommand first(&field, 0, 2);
    first.execute();
    QCOMPARE(textOf(field), QByteArray("[ 0 0 0, 0 0 0 ]"));
    field.set1(1, "1 2 3");
    TvkMFAddRowsCommand last(&field, 2, 2);
    last.execute();
    QCOMPARE(textOf(field), QByteArray("[ 0 0 0, 1 2 3, 1 2 3, 1 2 3 ]"));
}

void tst_FieldRowCommands::keepsOneSummaryNotificationAfterTheRowsWrites()
{
    SoMFString field;
    fillWithStrings(field, {"a", "b"});
    QList<QList<QByteArray>> seen;
    NotificationCounter counter(field);
    counter.onNotification = [&] { seen << stringsOf(field); };
    TvkMFAddRowsCommand command(&field, 0, 2);
    command.execute();
    const QList<QByteArray> done = {"", "", "a", "b"};
    QCOMPARE(seen.size(), 4);
    QVERIFY(seen.at(1) != done);
    QCOMPARE(seen.at(2), done); // the last row's own
    QCOMPARE(seen.at(3), done); // the summary
}

void tst_FieldRowCommands::keepsTheSummaryNotificationOfNoRows()
{
    SoMFString field;
    fillWithStrings(field, {"a"});
    NotificationCounter counter(field);
    TvkMFAddRowsCommand command(&field, 0, 0);
    command.execute();
    QCOMPARE(stringsOf(field), QList<QByteArray>({"a"}));
    QCOMPARE(counter.take(), 1);
}

void tst_FieldRowCommands::deletedRowsComeBackInTheirPlacesAndOrder()
{
    SoMFString field;
    const QList<QByteArray> all = {"0", "1", "2", "3", "4", "5"};
    fillWithStrings(field, all);
    TvkMFDeleteRowsCommand command(&field, 2, 3);
    command.execute();
    QCOMPARE(stringsOf(field), QList<QByteArray>({"0", "1", "5"}));
    command.undo();
    QCOMPARE(stringsOf(field), all);
    command.redo();
    QCOMPARE(stringsOf(field), QList<QByteArray>({"0", "1", "5"}));
}

void tst_FieldRowCommands::allRowsComeBack()
{
    SoMFVec3f field;
    field.set("[ 1 2 3, 4 5 6, 7 8 9 ]");
    TvkMFDeleteRowsCommand command(&field, 0, 3);
    command.execute();
    QCOMPARE(field.getNum(), 0);
    command.undo();
    QCOMPARE(textOf(field), QByteArray("[ 1 2 3, 4 5 6, 7 8 9 ]"));
}

void tst_FieldRowCommands::deletedStringsComeBackByteForByte()
{
    SoMFString field;
    fillWithStrings(field, s_hardStrings);
    TvkMFDeleteRowsCommand command(&field, 0, s_hardStrings.size());
    command.execute();
    QCOMPARE(field.getNum(), 0);
    command.undo();
    QCOMPARE(stringsOf(field), s_hardStrings);
}

void tst_FieldRowCommands::keepsANotificationForEachRowPutBack()
{
    SoMFString field;
    fillWithStrings(field, {"0", "1", "2", "3", "4"});
    TvkMFDeleteRowsCommand command(&field, 1, 3);
    command.execute();
    NotificationCounter counter(field);
    command.undo();
    QCOMPARE(counter.take(), 1 + 3); // room, then one a row, and no summary
}

void tst_FieldRowCommands::deletingNoRowsDoesNothing()
{
    SoMFString field;
    fillWithStrings(field, {"0", "1"});
    NotificationCounter counter(field);
    TvkMFDeleteRowsCommand command(&field, 1, 0);
    command.execute();
    command.undo();
    QCOMPARE(stringsOf(field), QList<QByteArray>({"0", "1"}));
    QCOMPARE(counter.take(), 0);
}

void tst_FieldRowCommands::keepsSwapItsOwnInverse()
{
    SoMFString field;
    fillWithStrings(field, {"a", "b", "c"});
    TvkMFSwapRowsCommand command(&field, 0, 1);
    const QList<QByteArray> exchanged = {"b", "a", "c"};
    command.execute();
    QCOMPARE(stringsOf(field), exchanged);
    command.undo();
    QCOMPARE(stringsOf(field), QList<QByteArray>({"a", "b", "c"}));
    command.redo();
    QCOMPARE(stringsOf(field), exchanged);
}

void tst_FieldRowCommands::aRowSwappedWithItselfStays()
{
    SoMFVec3f field;
    field.set("[ 1 2 3, 4 5 6 ]");
    TvkMFSwapRowsCommand command(&field, 1, 1);
    command.execute();
    QCOMPARE(textOf(field), QByteArray("[ 1 2 3, 4 5 6 ]"));
}

void tst_FieldRowCommands::swappedStringsStayByteForByte()
{
    SoMFString field;
    fillWithStrings(field, s_hardStrings);
    TvkMFSwapRowsCommand command(&field, 0, 1);
    command.execute();
    QCOMPARE(stringsOf(field).mid(0, 2), QList<QByteArray>({"a \"quote\"", "ends in \\"}));
    command.undo();
    QCOMPARE(stringsOf(field), s_hardStrings);
}

void tst_FieldRowCommands::swappedNumbersStayToTheLastBit()
{
    SoMFVec3f field;
    fillWithHardNumbers(field);
    const QByteArray before = bitsOf(field);
    TvkMFSwapRowsCommand command(&field, 0, 1);
    command.execute();
    QVERIFY(bitsOf(field) != before);
    QVERIFY(std::isnan(field[0][1]));
    command.undo();
    QCOMPARE(bitsOf(field), before);
}

void tst_FieldRowCommands::deletedNumbersComeBackToTheLastBit()
{
    SoMFVec3f field;
    fillWithHardNumbers(field);
    const QByteArray before = bitsOf(field);
    TvkMFDeleteRowsCommand command(&field, 0, 2);
    command.execute();
    command.undo();
    QCOMPARE(bitsOf(field), before);
}

void tst_FieldRowCommands::aNodeSwappedWithNoneLeavesNone()
{
    SoMFNode field;
    field.set1Value(0, static_cast<SoNode*>(nullptr));
    field.set1Value(1, new SoCube);
    TvkMFSwapRowsCommand command(&field, 0, 1);
    command.execute();
    QVERIFY(field[0] && field[0]->isOfType(SoCube::getClassTypeId()));
    QVERIFY(!field[1]);
    command.undo();
    QVERIFY(!field[0]);
    QVERIFY(field[1] && field[1]->isOfType(SoCube::getClassTypeId()));
}

TAVRIK_TEST_MAIN(tst_FieldRowCommands)
#include "tst_FieldRowCommands.moc"
