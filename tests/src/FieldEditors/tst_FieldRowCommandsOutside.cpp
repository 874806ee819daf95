#include "FieldEditors/TvkMFAddRowsCommand.h"
#include "FieldEditors/TvkMFDeleteRowsCommand.h"
#include "FieldEditors/TvkMFSetFieldValueCommand.h"
#include "FieldEditors/TvkMFSetValueCommand.h"
#include "FieldEditors/TvkMFSwapRowsCommand.h"
#include "tests/support/FieldTexts.h"
#include "tests/support/NotificationCounter.h"
#include "tests/support/ReportLog.h"
#include "tests/support/StringRows.h"
#include "tests/support/TestMain.h"

#include <Inventor/fields/SoFields.h>

#include <functional>
#include <limits>

namespace {

constexpr int s_least = std::numeric_limits<int>::min();
constexpr int s_most = std::numeric_limits<int>::max();

using Maker = std::function<TvkCommand*(SoMField&)>;

template <class Command>
Maker rows(int first, int second)
{
    return [=](SoMField& field) { return new Command(&field, first, second); };
}

Maker setRow(int row)
{
    return [row](SoMField& field) {
        SbString before("before");
        return new TvkMFSetValueCommand(&field, row, before);
    };
}

Maker setColour(int row)
{
    return [row](SoMField& field) { return new TvkMFSetFieldValueCommand(&field, row); };
}

using Add = TvkMFAddRowsCommand;
using Delete = TvkMFDeleteRowsCommand;
using Swap = TvkMFSwapRowsCommand;

void addOutsideRows(const char* rowName, const QList<QByteArray>& strings, const Maker& make)
{
    QTest::newRow(rowName) << strings << make;
}

void addOutsideOfThree(const QList<QByteArray>& three)
{
    addOutsideRows("add after a gap", three, rows<Add>(4, 1));
    addOutsideRows("add at -1", three, rows<Add>(-1, 1));
    addOutsideRows("add -1 rows", three, rows<Add>(1, -1));
    addOutsideRows("add at the least row", three, rows<Add>(s_least, 1));
    addOutsideRows("add at the most row", three, rows<Add>(s_most, 1));
    addOutsideRows("add the least count", three, rows<Add>(0, s_least));
    addOutsideRows("add the most count", three, rows<Add>(0, s_most));
    addOutsideRows("delete past the end", three, rows<Delete>(2, 5));
    addOutsideRows("delete one past the end", three, rows<Delete>(2, 2));
    addOutsideRows("delete at -1", three, rows<Delete>(-1, 1));
    addOutsideRows("delete behind the end", three, rows<Delete>(5, 1));
    addOutsideRows("delete -1 rows", three, rows<Delete>(1, -1));
    addOutsideRows("delete at the least row", three, rows<Delete>(s_least, 1));
    addOutsideRows("delete at the most row", three, rows<Delete>(s_most, s_most));
    addOutsideRows("delete the most count", three, rows<Delete>(1, s_most));
    addOutsideRows("delete the least count", three, rows<Delete>(1, s_least));
    addOutsideRows("swap the first outside", three, rows<Swap>(-1, 1));
    addOutsideRows("swap the second outside", three, rows<Swap>(1, 3));
    addOutsideRows("swap both outside", three, rows<Swap>(s_least, s_most));
    addOutsideRows("set row -1", three, setRow(-1));
    addOutsideRows("set row behind the end", three, setRow(3));
    addOutsideRows("set the least row", three, setRow(s_least));
    addOutsideRows("set the most row", three, setRow(s_most));
    addOutsideRows("set colour -1", three, setColour(-1));
    addOutsideRows("set colour behind the end", three, setColour(3));
}

void addOutsideOfNone()
{
    addOutsideRows("add to the empty after a gap", {}, rows<Add>(1, 1));
    addOutsideRows("delete from the empty", {}, rows<Delete>(0, 1));
    addOutsideRows("swap in the empty", {}, rows<Swap>(0, 1));
    addOutsideRows("set in the empty", {}, setRow(0));
    addOutsideRows("set a colour in the empty", {}, setColour(0));
}

bool allAreWarnings(const QStringList& reports)
{
    return std::all_of(reports.begin(), reports.end(), [](const QString& report) {
        return report.startsWith(QLatin1String("Coin warning in SoMFieldRows::"));
    });
}

} // namespace

Q_DECLARE_METATYPE(Maker)

/** The commands on rows that the field does not have. */
class tst_FieldRowCommandsOutside : public QObject
{
    Q_OBJECT

private slots:
    void rowsOutsideTheFieldAreLeftAlone_data();
    void rowsOutsideTheFieldAreLeftAlone();
};

void tst_FieldRowCommandsOutside::rowsOutsideTheFieldAreLeftAlone_data()
{
    QTest::addColumn<QList<QByteArray>>("strings");
    QTest::addColumn<Maker>("make");
    addOutsideOfThree({"a", "b", "c"});
    addOutsideOfNone();
}

void tst_FieldRowCommandsOutside::rowsOutsideTheFieldAreLeftAlone()
{
    QFETCH(QList<QByteArray>, strings);
    QFETCH(Maker, make);
    SoMFString field;
    field.setNum(0);
    fillWithStrings(field, strings);
    NotificationCounter counter(field);
    ReportLog log;
    const std::unique_ptr<TvkCommand> command(make(field));
    command->execute();
    command->undo();
    command->redo();
    QCOMPARE(stringsOf(field), strings);
    QCOMPARE(counter.take(), 0);
    const QStringList reports = log.taken();
    QVERIFY(!reports.isEmpty());
    QVERIFY2(allAreWarnings(reports), qPrintable(reports.join(QLatin1Char('\n'))));
}

TAVRIK_TEST_MAIN(tst_FieldRowCommandsOutside)
#include "tst_FieldRowCommandsOutside.moc"
