#include "scenegraph/SoMFieldRows.h"

#include "tests/scenegraph/NumberedRows.h"
#include "tests/support/FieldTexts.h"
#include "tests/support/NotificationCounter.h"
#include "tests/support/ReportLog.h"
#include "tests/support/TestMain.h"

#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoCoordinate3.h>

#include <limits>

namespace {

constexpr int most = std::numeric_limits<int>::max();
constexpr int least = std::numeric_limits<int>::min();

} // namespace

/** That nothing happens to a field whose rows are asked for outside of what it has. */
class tst_SoMFieldRowsOutside : public QObject
{
    Q_OBJECT

private slots:
    void aRowOutsideIsNeitherReadNorWritten_data();
    void aRowOutsideIsNeitherReadNorWritten();
    void aRunOutsideIsNeitherReadNorDeleted_data();
    void aRunOutsideIsNeitherReadNorDeleted();
    void roomOutsideIsNotMade_data();
    void roomOutsideIsNotMade();
    void theWarningNamesFunctionFieldAndRows();
    void noRowsAreNoChange();
};

void tst_SoMFieldRowsOutside::aRowOutsideIsNeitherReadNorWritten_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("row");
    QTest::newRow("first of none") << 0 << 0;
    QTest::newRow("before the first") << 3 << -1;
    QTest::newRow("after the last") << 3 << 3;
    QTest::newRow("far after") << 3 << most;
    QTest::newRow("far before") << 3 << least;
}

void tst_SoMFieldRowsOutside::aRowOutsideIsNeitherReadNorWritten()
{
    QFETCH(int, rows);
    QFETCH(int, row);
    SoMFInt32 field;
    fillWithNumbers(field, rows);
    const QString before = rowsInOneLine(field);
    ReportLog log;
    SbString text("untouched");
    QVERIFY(!SoMFieldRows::get1(&field, row, text));
    QCOMPARE(text.getString(), "untouched");
    QCOMPARE(log.taken().size(), 1);
    QCOMPARE(notificationsOf(field, [&] { SoMFieldRows::set1(&field, row, "1"); }), 0);
    QCOMPARE(log.taken().size(), 1);
    QCOMPARE(rowsInOneLine(field), before);
}

void tst_SoMFieldRowsOutside::aRunOutsideIsNeitherReadNorDeleted_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("count");
    QTest::newRow("one of none") << 0 << 0 << 1;
    QTest::newRow("past the end") << 3 << 2 << 5;
    QTest::newRow("after the end") << 3 << 5 << 1;
    QTest::newRow("at the end") << 3 << 3 << 1;
    QTest::newRow("before the first") << 3 << -1 << 1;
    QTest::newRow("up to the end, as Coin spells it") << 3 << 0 << -1;
    QTest::newRow("sum overflows") << 3 << 1 << most;
    QTest::newRow("difference overflows") << 3 << least << 1;
    QTest::newRow("far negative count") << 3 << 1 << least;
    QTest::newRow("no rows, but outside") << 3 << 4 << 0;
}

void tst_SoMFieldRowsOutside::aRunOutsideIsNeitherReadNorDeleted()
{
    QFETCH(int, rows);
    QFETCH(int, start);
    QFETCH(int, count);
    SoMFInt32 field;
    fillWithNumbers(field, rows);
    const QString before = rowsInOneLine(field);
    ReportLog log;
    SbString text("untouched");
    QVERIFY(!SoMFieldRows::deleteValues(&field, start, count));
    QVERIFY(!SoMFieldRows::readTexts(&field, start, count, &text));
    QCOMPARE(log.taken().size(), 2);
    QCOMPARE(text.getString(), "untouched");
    QCOMPARE(rowsInOneLine(field), before);
}

void tst_SoMFieldRowsOutside::roomOutsideIsNotMade_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("count");
    QTest::newRow("after the end") << 4 << 1;
    QTest::newRow("before the first") << -1 << 1;
    QTest::newRow("negative count") << 1 << -1;
    QTest::newRow("more rows than can be counted") << 1 << most - 2;
    QTest::newRow("far negative count") << 1 << least;
}

void tst_SoMFieldRowsOutside::roomOutsideIsNotMade()
{
    QFETCH(int, start);
    QFETCH(int, count);
    SoMFInt32 field;
    fillWithNumbers(field, 3);
    ReportLog log;
    const SbString text("1");
    QVERIFY(!SoMFieldRows::insertSpace(&field, start, count));
    QVERIFY(!SoMFieldRows::insertEmpty(&field, start, count));
    QVERIFY(!SoMFieldRows::insertTexts(&field, start, count, &text));
    QCOMPARE(log.taken().size(), 3);
    QCOMPARE(rowsInOneLine(field), "10 11 12");
}

void tst_SoMFieldRowsOutside::theWarningNamesFunctionFieldAndRows()
{
    ReportLog log;
    auto* node = new SoCoordinate3;
    node->ref();
    SoMFieldRows::deleteValues(&node->point, 5, 2);
    node->unref();
    QCOMPARE(log.taken(),
             QStringList{"Coin warning in SoMFieldRows::deleteValues(): "
                         "MFVec3f \"point\" has 1 rows: nothing done for 2 rows from row 5 on"});
    SoMFInt32 free;
    SoMFieldRows::insertEmpty(&free, 1, 1);
    QCOMPARE(log.taken(), QStringList{"Coin warning in SoMFieldRows::insertEmpty(): "
                                      "MFInt32 has 0 rows: nothing done for 1 rows from row 1 on"});
}

void tst_SoMFieldRowsOutside::noRowsAreNoChange()
{
    ReportLog log;
    SoMFInt32 field;
    fillWithNumbers(field, 3);
    const int notifications = notificationsOf(field, [&] {
        QVERIFY(SoMFieldRows::deleteValues(&field, 3, 0));
        QVERIFY(SoMFieldRows::insertSpace(&field, 3, 0));
        QVERIFY(SoMFieldRows::insertEmpty(&field, 0, 0));
        QVERIFY(SoMFieldRows::readTexts(&field, 1, 0, nullptr));
        QVERIFY(SoMFieldRows::insertTexts(&field, 1, 0, nullptr));
    });
    QCOMPARE(notifications, 0);
    QCOMPARE(rowsInOneLine(field), "10 11 12");
    QCOMPARE(log.taken(), QStringList());
}

TAVRIK_TEST_MAIN(tst_SoMFieldRowsOutside)
#include "tst_SoMFieldRowsOutside.moc"
