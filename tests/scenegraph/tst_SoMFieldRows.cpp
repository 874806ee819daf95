#include "scenegraph/SoMFieldRows.h"

#include "tests/scenegraph/NumberedRows.h"
#include "tests/support/FieldTexts.h"
#include "tests/support/NotificationCounter.h"
#include "tests/support/ReportLog.h"
#include "tests/support/TestMain.h"

#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoIndexedLineSet.h>

class tst_SoMFieldRows : public QObject
{
    Q_OBJECT

private slots:
    void readsAndWritesARow();
    void newRowsAreCopiesOfTheRowsAfterThem_data();
    void newRowsAreCopiesOfTheRowsAfterThem();
    void makingRoomNotifiesOnce_data();
    void makingRoomNotifiesOnce();
    void insertedRowsOfStringsAreEmpty();
    void deletedRowsComeBackFromTheirTexts();
    void awkwardStringsComeBackFromTheirTexts();
    void aRefusedTextLeavesACopyOfANeighbour();
    void aConnectedFieldTakesItsValuesFirst();
    void theFirstAndTheLastRowCanBeSwapped();
};

void tst_SoMFieldRows::readsAndWritesARow()
{
    SoMFInt32 field;
    fillWithNumbers(field, 3);
    SbString text;
    QVERIFY(SoMFieldRows::get1(&field, 2, text));
    QCOMPARE(text.getString(), "12");
    QVERIFY(SoMFieldRows::set1(&field, 0, "7"));
    QCOMPARE(rowsInOneLine(field), "7 11 12");
    QVERIFY(!SoMFieldRows::set1(&field, 0, "no number"));
    QCOMPARE(field.getNum(), 3);
}

void tst_SoMFieldRows::newRowsAreCopiesOfTheRowsAfterThem_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("after");
    QTest::newRow("one in front") << 3 << 0 << 1 << "10 10 11 12";
    QTest::newRow("two in the middle") << 3 << 1 << 2 << "10 11 12 11 12";
    QTest::newRow("more than there are rows after") << 3 << 2 << 4 << "10 11 12 12 12 12 12";
    QTest::newRow("many more") << 3 << 1 << 5 << "10 11 12 11 11 12 11 12";
    QTest::newRow("at the end") << 3 << 3 << 3 << "10 11 12 12 12 12";
    QTest::newRow("into none") << 0 << 0 << 3 << "0 0 0";
}

void tst_SoMFieldRows::newRowsAreCopiesOfTheRowsAfterThem()
{
    QFETCH(int, rows);
    QFETCH(int, start);
    QFETCH(int, count);
    QFETCH(QString, after);
    SoMFInt32 field;
    fillWithNumbers(field, rows);
    QVERIFY(SoMFieldRows::insertSpace(&field, start, count));
    QCOMPARE(rowsInOneLine(field), after);
}

void tst_SoMFieldRows::makingRoomNotifiesOnce_data()
{
    newRowsAreCopiesOfTheRowsAfterThem_data();
}

void tst_SoMFieldRows::makingRoomNotifiesOnce()
{
    QFETCH(int, rows);
    QFETCH(int, start);
    QFETCH(int, count);
    SoMFInt32 field;
    fillWithNumbers(field, rows);
    const auto change = [&] { SoMFieldRows::insertSpace(&field, start, count); };
    QCOMPARE(notificationsOf(field, change), 1);
    QVERIFY(field.isNotifyEnabled());
}

void tst_SoMFieldRows::insertedRowsOfStringsAreEmpty()
{
    SoMFString field;
    field.set1Value(0, "a");
    field.set1Value(1, "b");
    const auto change = [&] { QVERIFY(SoMFieldRows::insertEmpty(&field, 1, 3)); };
    QCOMPARE(notificationsOf(field, change), 4);
    QCOMPARE(rowsInOneLine(field), R"("a" "" "" "" "b")");
    QVERIFY(SoMFieldRows::insertEmpty(&field, 5, 1));
    QCOMPARE(rowsInOneLine(field), R"("a" "" "" "" "b" "")");
}

void tst_SoMFieldRows::deletedRowsComeBackFromTheirTexts()
{
    SoMFInt32 field;
    fillWithNumbers(field, 6);
    SbString texts[3];
    QVERIFY(SoMFieldRows::readTexts(&field, 2, 3, texts));
    QVERIFY(SoMFieldRows::deleteValues(&field, 2, 3));
    QCOMPARE(rowsInOneLine(field), "10 11 15");
    const auto change = [&] { QVERIFY(SoMFieldRows::insertTexts(&field, 2, 3, texts)); };
    QCOMPARE(notificationsOf(field, change), 4);
    QCOMPARE(rowsInOneLine(field), "10 11 12 13 14 15");
}

void tst_SoMFieldRows::awkwardStringsComeBackFromTheirTexts()
{
    ReportLog log;
    SoMFString field;
    const char* strings[] = {"a\\", "\"\n", "", "\\\"", "plain"};
    field.setValues(0, 5, strings);
    const QString before = rowsInOneLine(field);
    SbString texts[5];
    SoMFieldRows::readTexts(&field, 0, 5, texts);
    SoMFieldRows::deleteValues(&field, 0, 5);
    QCOMPARE(field.getNum(), 0);
    SoMFieldRows::insertTexts(&field, 0, 5, texts);
    QCOMPARE(rowsInOneLine(field), before);
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoMFieldRows::aRefusedTextLeavesACopyOfANeighbour()
{
    SoMFInt32 field;
    fillWithNumbers(field, 2);
    const SbString texts[] = {"no number", "5"};
    QVERIFY(SoMFieldRows::insertTexts(&field, 2, 2, texts));
    QCOMPARE(rowsInOneLine(field), "10 11 11 5");
}

void tst_SoMFieldRows::aConnectedFieldTakesItsValuesFirst()
{
    auto* nodes = new SoGroup;
    nodes->ref();
    auto* first = new SoIndexedLineSet;
    auto* second = new SoIndexedLineSet;
    nodes->addChild(first);
    nodes->addChild(second);
    SoMFInt32& master = first->coordIndex;
    SoMFInt32& slave = second->coordIndex;
    slave.connectFrom(&master);
    fillWithNumbers(master, 4);
    QVERIFY(SoMFieldRows::set1(&slave, 3, "7"));
    QCOMPARE(rowsInOneLine(slave), "10 11 12 7");
    fillWithNumbers(master, 5);
    QVERIFY(SoMFieldRows::insertSpace(&slave, 5, 1));
    QCOMPARE(rowsInOneLine(slave), "10 11 12 13 14 14");
    fillWithNumbers(master, 6);
    QVERIFY(SoMFieldRows::deleteValues(&slave, 1, 4));
    QCOMPARE(rowsInOneLine(slave), "10 15");
    nodes->unref();
}

void tst_SoMFieldRows::theFirstAndTheLastRowCanBeSwapped()
{
    SoMFString field;
    const char* strings[] = {"a\\", "b", "c\""};
    field.setValues(0, 3, strings);
    SbString first;
    SbString last;
    QVERIFY(SoMFieldRows::get1(&field, 0, first) && SoMFieldRows::get1(&field, 2, last));
    QVERIFY(SoMFieldRows::set1(&field, 0, last) && SoMFieldRows::set1(&field, 2, first));
    QCOMPARE(rowsInOneLine(field), R"("c\"" "b" "a\")");
}

TAVRIK_TEST_MAIN(tst_SoMFieldRows)
#include "tst_SoMFieldRows.moc"
