#include "tests/support/CaughtStderr.h"
#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/AccessButtonPrivate.h"
#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFStringWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec2fWidget.h"

#include <Inventor/sensors/SoFieldSensor.h>

#include <QHeaderView>
#include <QLabel>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSignalSpy>

/** An editor of five rows of integers, "0" to "4", with row 2 current. */
class FiveRows
{
public:
    FiveRows()
    {
        rig.field->set("[0, 1, 2, 3, 4]");
        TableRig::runSensors();
        rig.table().setCurrentCell(2, 0);
    }

    DvMFieldTable& table() const { return rig.table(); }
    QSpinBox& box() const { return rig.accessBox(); }
    QString shown() const { return rig.shownRows().join(QLatin1Char(' ')); }
    QByteArray rows() const { return rig.rows().join(' '); }
    int count() const { return rig.host.services.count(); }

    /** Rows, spin box and current cell say the same; then their number and the current row. */
    QString inStep() const
    {
        const int current = table().currentRow();
        const int rowCount = rig.field->getNum();
        const bool same = table().rowCount() == rowCount && box().maximum() == rowCount &&
                          box().minimum() == (rowCount > 0 ? 1 : 0) && box().value() == current + 1;
        return same ? QStringLiteral("%1 rows, at %2").arg(rowCount).arg(current)
                    : QStringLiteral("out of step");
    }

    void undo() const
    {
        rig.host.services.undo(count() - 1);
        TableRig::runSensors();
    }
    void redo() const
    {
        rig.host.services.redo(count() - 1);
        TableRig::runSensors();
    }
    void press(int key, Qt::KeyboardModifiers with = Qt::NoModifier) const
    {
        QTest::keyClick(&table(), static_cast<Qt::Key>(key), with);
        TableRig::runSensors();
    }

    DvMFInt32Widget editor;
    TableRig rig{editor, "mfInt32"};
};

class tst_DvMFieldTable : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void hasTheBasesNameWithoutOne()
    {
        const FiveRows five;
        const DvMFieldTable table(five.rig.editor, nullptr);
        QCOMPARE(table.objectName(), QStringLiteral("DvMFieldTable"));
        const DvMFieldTable named(five.rig.editor, nullptr, "other");
        QCOMPARE(named.objectName(), QStringLiteral("other"));
    }

    void scrollsUpAndDownOnly()
    {
        const FiveRows five;
        QCOMPARE(five.table().verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
        QCOMPARE(five.table().horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QVERIFY(!five.table().isRangeSelection());
        QCOMPARE(five.table().itemDelegate(),
                 static_cast<QAbstractItemDelegate*>(&five.table().delegate()));
    }

    void theSlotsComeInTheirOrder()
    {
        const QMetaObject& meta = DvMFieldTable::staticMetaObject;
        const char* const expected[] = {"setNumRows(int)",   "swapUpRow()",
                                        "swapDownRow()",     "deleteRow()",
                                        "addRow()",          "showTableRow(int)",
                                        "swapRows(int,int)", "editorDestroyed(QObject*)"};
        int index = meta.methodOffset();
        for (const char* signature : expected)
            QCOMPARE(meta.method(index++).methodSignature(), QByteArray(signature));
        QCOMPARE(meta.method(meta.indexOfSlot("swapRows(int,int)")).parameterNames(),
                 (QList<QByteArray>{"row1", "row2"}));
    }

    void noRowsGiveTheSpinBoxNoRange()
    {
        const FiveRows five;
        five.table().setNumRows(0);
        QCOMPARE(five.box().minimum(), 0);
        QCOMPARE(five.box().maximum(), 0);
        QCOMPARE(five.table().rowCount(), 0);
        five.table().setNumRows(3);
        QCOMPARE(five.box().minimum(), 1);
        QCOMPARE(five.box().maximum(), 3);
    }

    void fewerThanNoRowsChangeNothing()
    {
        const FiveRows five;
        five.table().setNumRows(-1);
        QCOMPARE(five.inStep(), QStringLiteral("5 rows, at 2"));
    }

    void plusInsertsARowBelowAndStays()
    {
        const FiveRows five;
        QSignalSpy moved(&five.table(), SIGNAL(currentCellChanged(int, int, int, int)));
        QTest::keyClick(&five.table(), Qt::Key_Plus);
        QCOMPARE(five.table().rowCount(), 6);
        QCOMPARE(five.box().maximum(), 6);
        QCOMPARE(five.table().currentRow(), 2);
        QCOMPARE(moved.last(), (QVariantList{2, 0, 3, 0}));
        TableRig::runSensors();
        QCOMPARE(five.inStep(), QStringLiteral("6 rows, at 2"));
        QCOMPARE(five.count(), 1);
        five.undo();
        QCOMPARE(five.inStep(), QStringLiteral("5 rows, at 2"));
        QCOMPARE(five.rows(), QByteArray("0 1 2 3 4"));
        five.redo();
        QCOMPARE(five.inStep(), QStringLiteral("6 rows, at 2"));
        QCOMPARE(five.shown().section(QLatin1Char(' '), -1), QStringLiteral("4"));
    }

    void plusInAnEmptyTableMakesTheFirstRowCurrent()
    {
        const FiveRows five;
        five.rig.field->setNum(0);
        TableRig::runSensors();
        QCOMPARE(five.inStep(), QStringLiteral("0 rows, at -1"));
        QSignalSpy moved(&five.table(), SIGNAL(currentCellChanged(int, int, int, int)));
        five.press(Qt::Key_Plus);
        QCOMPARE(five.inStep(), QStringLiteral("1 rows, at 0"));
        QCOMPARE(moved.last(), (QVariantList{0, 0, 0, 0}));
        five.undo();
        QCOMPARE(five.inStep(), QStringLiteral("0 rows, at -1"));
    }

    void addingTwiceBeforeTheSensorRunsAddsTwoRows()
    {
        const FiveRows five;
        five.rig.click("m_addButton");
        five.rig.click("m_addButton");
        QCOMPARE(five.count(), 2);
        QCOMPARE(five.inStep(), QStringLiteral("7 rows, at 2"));
    }

    void anEditOfRowsGoesByTheFieldAsItIsNow()
    {
        const FiveRows five;
        five.table().setCurrentCell(4, 0);
        five.rig.field->setNum(2);
        five.rig.click("m_addButton");
        QCOMPARE(five.inStep(), QStringLiteral("3 rows, at 1"));
        QCOMPARE(five.shown().left(4), QStringLiteral("0 1 "));
        five.rig.field->setNum(1);
        five.rig.click("m_deleteButton");
        QCOMPARE(five.inStep(), QStringLiteral("0 rows, at -1"));
    }

    void minusAndDeleteTakeTheCurrentRow()
    {
        for (const int key : {Qt::Key_Minus, Qt::Key_Delete}) {
            const FiveRows five;
            five.press(key);
            QCOMPARE(five.rows(), QByteArray("0 1 3 4"));
            QCOMPARE(five.shown(), QStringLiteral("0 1 3 4"));
            QCOMPARE(five.inStep(), QStringLiteral("4 rows, at 1"));
            QCOMPARE(five.count(), 1);
            five.undo();
            QCOMPARE(five.shown(), QStringLiteral("0 1 2 3 4"));
            QCOMPARE(five.inStep(), QStringLiteral("5 rows, at 1"));
        }
    }

    void deletingTheFirstRowStaysAtTheTop()
    {
        const FiveRows five;
        five.table().setCurrentCell(0, 0);
        five.press(Qt::Key_Delete);
        QCOMPARE(five.inStep(), QStringLiteral("4 rows, at 0"));
        QCOMPARE(five.shown(), QStringLiteral("1 2 3 4"));
    }

    void deletingTheOnlyRowEmptiesTheTable()
    {
        const FiveRows five;
        five.rig.field->setNum(1);
        TableRig::runSensors();
        five.press(Qt::Key_Delete);
        QCOMPARE(five.inStep(), QStringLiteral("0 rows, at -1"));
        five.press(Qt::Key_Delete);
        QCOMPARE(five.count(), 1);
        five.undo();
        QCOMPARE(five.inStep(), QStringLiteral("1 rows, at 0"));
    }

    void theSpinBoxIsLoweredBeforeTheCommand()
    {
        const FiveRows five;
        int maximum = -1;
        SoFieldSensor watch(
            [](void* data, SoSensor*) {
                auto* const found = static_cast<std::pair<QSpinBox*, int*>*>(data);
                *found->second = found->first->maximum();
            },
            nullptr);
        std::pair<QSpinBox*, int*> found{&five.box(), &maximum};
        watch.setData(&found);
        watch.setPriority(0);
        watch.attach(five.rig.field);
        QTest::keyClick(&five.table(), Qt::Key_Delete);
        QCOMPARE(maximum, 4);
    }

    void withoutACurrentRowNothingIsDeleted()
    {
        const FiveRows five;
        five.table().setCurrentCell(-1, -1);
        five.press(Qt::Key_Delete);
        QCOMPARE(five.count(), 0);
        QCOMPARE(five.table().rowCount(), 5);
    }

    void keepsRowsSelectableOnlyWhileShiftIsHeldAfterItsFirstRelease()
    {
        const FiveRows five;
        QVERIFY(five.table().selectionMode() != QAbstractItemView::NoSelection);
        QTest::keyPress(&five.table(), Qt::Key_Shift);
        QVERIFY(five.table().isRangeSelection());
        QCOMPARE(five.table().selectionMode(), QAbstractItemView::ContiguousSelection);
        QTest::keyRelease(&five.table(), Qt::Key_Shift);
        QVERIFY(!five.table().isRangeSelection());
        QCOMPARE(five.table().selectionMode(), QAbstractItemView::NoSelection);
        five.table().clearSelection();
        QTest::mouseClick(five.table().viewport(), Qt::LeftButton, Qt::NoModifier,
                          five.table().visualItemRect(five.table().item(1, 0)).center());
        QVERIFY(five.table().selectedRanges().isEmpty());
        QCOMPARE(five.table().currentRow(), 1);
    }

    void losingTheFocusWithShiftHeldEndsTheSelecting()
    {
        const FiveRows five;
        five.table().setFocus();
        QTest::keyPress(&five.table(), Qt::Key_Shift);
        QTest::keyClick(&five.table(), Qt::Key_Down, Qt::ShiftModifier);
        five.rig.leave(); // which hears of the release
        QVERIFY(!five.table().isRangeSelection());
        QCOMPARE(five.table().selectionMode(), QAbstractItemView::NoSelection);
        five.table().setFocus();
        five.press(Qt::Key_Delete);
        QCOMPARE(five.rows(), QByteArray("0 1 2 4"));
    }

    void aCapitalLetterThatOpensACellSelectsNoRows()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        rig.table().setFocus();
        rig.table().setCurrentCell(1, 0);
        QTest::keyPress(&rig.table(), Qt::Key_Shift);
        QTest::keyClick(&rig.table(), Qt::Key_A, Qt::ShiftModifier);
        QVERIFY(rig.openLine());
        QTest::keyRelease(rig.openLine(), Qt::Key_Shift);
        QTest::keyClick(rig.openLine(), Qt::Key_Return);
        TableRig::settle();
        QVERIFY(!rig.table().isRangeSelection());
        QTest::keyClick(&rig.table(), Qt::Key_Delete);
        QCOMPARE(rig.rows().size(), 2);
        QCOMPARE(rig.host.services.count(), 2);
    }

    void shiftAndDeleteTakeTheSelectedRowsAsOneEntry()
    {
        const FiveRows five;
        five.table().setCurrentCell(1, 0);
        QTest::keyPress(&five.table(), Qt::Key_Shift);
        five.press(Qt::Key_Down, Qt::ShiftModifier);
        five.press(Qt::Key_Down, Qt::ShiftModifier);
        five.press(Qt::Key_Delete, Qt::ShiftModifier);
        QTest::keyRelease(&five.table(), Qt::Key_Shift);
        QCOMPARE(five.rows(), QByteArray("0 4"));
        QCOMPARE(five.shown(), QStringLiteral("0 4"));
        QCOMPARE(five.inStep(), QStringLiteral("2 rows, at 0"));
        QCOMPARE(five.count(), 1);
        five.undo();
        QCOMPARE(five.shown(), QStringLiteral("0 1 2 3 4"));
        QCOMPARE(five.inStep(), QStringLiteral("5 rows, at 0"));
    }

    void shiftAndDeleteWithoutASelectionTakeNothing()
    {
        const FiveRows five;
        five.table().clearSelection();
        QTest::keyPress(&five.table(), Qt::Key_Shift);
        five.press(Qt::Key_Delete, Qt::ShiftModifier);
        QCOMPARE(five.count(), 0);
    }

    void upAndDownMoveTheRowThatTheSpinBoxSays()
    {
        const FiveRows five;
        five.rig.click("m_upButton");
        QCOMPARE(five.rows(), QByteArray("0 2 1 3 4"));
        QCOMPARE(five.inStep(), QStringLiteral("5 rows, at 1"));
        five.rig.click("m_downButton");
        five.rig.click("m_downButton");
        QCOMPARE(five.rows(), QByteArray("0 1 3 2 4"));
        QCOMPARE(five.inStep(), QStringLiteral("5 rows, at 3"));
        QCOMPARE(five.count(), 3);
        five.undo();
        QCOMPARE(five.shown(), QStringLiteral("0 1 2 3 4"));
        QCOMPARE(five.inStep(), QStringLiteral("5 rows, at 3"));
        five.redo();
        QCOMPARE(five.shown(), QStringLiteral("0 1 3 2 4"));
    }

    void aNumberThatHasOnlyBeenTypedIsTheRowToMove()
    {
        const FiveRows five;
        five.box().setFocus();
        five.box().selectAll();
        QTest::keyClicks(&five.box(), "5");
        five.rig.click("m_upButton");
        QCOMPARE(five.rows(), QByteArray("0 1 2 4 3"));
        QCOMPARE(five.inStep(), QStringLiteral("5 rows, at 3"));
    }

    void keepsTheTraceLinesAtTheEnds()
    {
        const FiveRows five;
        const CaughtStderr caught;
        five.table().setCurrentCell(0, 0);
        five.table().swapUpRow();
        five.table().setCurrentCell(4, 0);
        five.table().swapDownRow();
        QCOMPARE(caught.text(), QByteArray("DvMFieldTable::swapUpRow() 0\n"
                                           "DvMFieldTable::swapDownRow() 4\n"));
        QCOMPARE(five.count(), 0);
        QCOMPARE(five.inStep(), QStringLiteral("5 rows, at 4"));
    }

    void anEmptyTableMovesNothing()
    {
        const FiveRows five;
        five.rig.field->setNum(0);
        TableRig::runSensors();
        const CaughtStderr caught;
        five.table().swapUpRow();
        five.table().swapDownRow();
        QCOMPARE(caught.text(), QByteArray("DvMFieldTable::swapUpRow() -1\n"
                                           "DvMFieldTable::swapDownRow() -1\n"));
        QCOMPARE(five.count(), 0);
    }

    void theSpinBoxLeadsToTheRowWithItsNumber()
    {
        const FiveRows five;
        five.box().setValue(5);
        QCOMPARE(five.table().currentRow(), 4);
        five.table().setCurrentCell(1, 0);
        QCOMPARE(five.box().value(), 2);
        QTest::keyClick(&five.box(), Qt::Key_Down);
        QCOMPARE(five.inStep(), QStringLiteral("5 rows, at 0"));
    }

    void rowsThatDoNotExistAreNotShown()
    {
        const FiveRows five;
        for (const int row : {-1, 5, 1000})
            five.table().showTableRow(row);
        QCOMPARE(five.inStep(), QStringLiteral("5 rows, at 2"));
        five.table().showTableRow(4);
        QCOMPARE(five.inStep(), QStringLiteral("5 rows, at 4"));
    }

    void rowsAndSpinBoxFollowEveryOutsideLength()
    {
        const FiveRows five;
        for (const int length : {9, 3, 0, 1, 400, 2}) {
            five.rig.field->setNum(length);
            TableRig::runSensors();
            QVERIFY2(five.inStep().startsWith(QString::number(length)), qPrintable(five.inStep()));
            QCOMPARE(five.table().verticalHeader()->count(), length);
        }
        QCOMPARE(five.rig.find<QLabel>("m_labelNumElement")->text(), QStringLiteral("of 2"));
    }

    void anAppendedRowDoesNotScrollTheUserBack()
    {
        const FiveRows five;
        five.rig.field->setNum(500);
        TableRig::runSensors();
        five.table().verticalScrollBar()->setValue(300);
        five.rig.field->setNum(501);
        TableRig::runSensors();
        QCOMPARE(five.table().verticalScrollBar()->value(), 300);
        QCOMPARE(five.table().currentRow(), 2);
    }

    void theCurrentColumnOutlivesAnOutsideLength()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.table().setCurrentCell(1, 1);
        rig.field->setNum(2);
        TableRig::runSensors();
        QCOMPARE(rig.table().currentColumn(), 1);
    }

    void everyTextFollowsItsRowThroughRandomEdits()
    {
        const FiveRows five;
        QRandomGenerator random(7);
        for (int step = 0; step < 200; ++step) {
            const int rowCount = five.rig.field->getNum();
            if (rowCount > 0)
                five.table().setCurrentCell(random.bounded(rowCount), 0);
            switch (random.bounded(5)) {
            case 0:
            case 1:
                five.rig.click("m_addButton");
                break;
            case 2:
                five.rig.click("m_deleteButton");
                break;
            case 3:
                five.rig.click("m_upButton");
                break;
            default:
                five.rig.field->set1(five.rig.field->getNum(), "77");
            }
            TableRig::runSensors();
            QCOMPARE(five.shown().toUtf8(), five.rows());
            QVERIFY(five.inStep() != QStringLiteral("out of step"));
        }
    }
};

TAVRIK_TEST_MAIN(tst_DvMFieldTable)
#include "tst_DvMFieldTable.moc"
