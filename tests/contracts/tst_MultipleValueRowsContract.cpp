#include "tests/contracts/TableEditors.h"
#include "tests/support/TestMain.h"

/** What all multiple-value editors make of their rows: moved, added and deleted. */
class tst_MultipleValueRowsContract : public QObject, private TableEditors
{
    Q_OBJECT

private:
    /** What a row holds that is added at a place. */
    static QByteArray addedAt(const TableRow& row, const QList<QByteArray>& rows, int place)
    {
        return row.copiesWhenAdding && !rows.isEmpty() ? rows[std::min(place, rows.size() - 1)]
                                                       : QByteArray(row.emptyRow);
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void swappingExchangesTheValuesTheWayOfItsType_data() { addRows(); }
    void swappingExchangesTheValuesTheWayOfItsType()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        const QList<QByteArray> before = rig.rows();
        editor->swapRows(0, 2);
        QCOMPARE(rig.rows(), QList<QByteArray>({before[2], before[1], before[0]}));
        QCOMPARE(rig.host.services.count(), r.swapsByCommand ? 1 : 0);
        editor->swapRows(0, 2);
        QCOMPARE(rig.rows(), before);
    }

    void movingARowIsUndoneAndRedone_data() { addRows(); }
    void movingARowIsUndoneAndRedone()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        const QList<QByteArray> before = rig.rows();
        rig.table().setCurrentCell(1, 0);
        rig.click("m_upButton");
        const QList<QByteArray> moved = {before[1], before[0], before[2]};
        QCOMPARE(rig.rows(), moved);
        QCOMPARE(rig.table().currentRow(), 0);
        QCOMPARE(rig.host.services.count(), 1);
        rig.host.services.undo(0);
        QCOMPARE(rig.rows(), before);
        rig.host.services.redo(0);
        QCOMPARE(rig.rows(), moved);
        TableRig::runSensors();
        verifyInStep(rig);
    }

    void aRowIsAddedAfterTheCurrentOne_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("current");
        int number = 0;
        for (const TableRow& row : rows()) {
            for (const int current : {-1, 0, 2})
                QTest::addRow("%s, after row %d", row.name, current) << number << current;
            ++number;
        }
    }
    void aRowIsAddedAfterTheCurrentOne()
    {
        const TableRow& r = fetchRow();
        QFETCH(int, current);
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        const QList<QByteArray> before = rig.rows();
        rig.table().setCurrentCell(current, current < 0 ? -1 : 0);
        QCOMPARE(rig.table().currentRow(), current);
        rig.click("m_addButton");
        QList<QByteArray> added = before;
        added.insert(current + 1, addedAt(r, before, current + 1));
        QCOMPARE(rig.rows(), added);
        QCOMPARE(rig.table().currentRow(), std::max(current, 0));
        TableRig::runSensors();
        verifyInStep(rig);
        rig.host.services.undo(0);
        TableRig::runSensors();
        QCOMPARE(rig.rows(), before);
        verifyInStep(rig);
        rig.host.services.redo(0);
        TableRig::runSensors();
        QCOMPARE(rig.rows(), added);
        verifyInStep(rig);
        QCOMPARE(rig.host.services.count(), 1);
    }

    void theCurrentRowIsDeleted_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("current");
        int number = 0;
        for (const TableRow& row : rows()) {
            for (const int current : {0, 1, 2})
                QTest::addRow("%s, row %d", row.name, current) << number << current;
            ++number;
        }
    }
    void theCurrentRowIsDeleted()
    {
        const TableRow& r = fetchRow();
        QFETCH(int, current);
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        const QList<QByteArray> before = rig.rows();
        rig.table().setCurrentCell(current, 0);
        rig.click("m_deleteButton");
        QList<QByteArray> deleted = before;
        deleted.removeAt(current);
        QCOMPARE(rig.rows(), deleted);
        TableRig::runSensors();
        verifyInStep(rig);
        rig.host.services.undo(0);
        TableRig::runSensors();
        QCOMPARE(rig.rows(), before);
        verifyInStep(rig);
        rig.host.services.redo(0);
        TableRig::runSensors();
        QCOMPARE(rig.rows(), deleted);
        verifyInStep(rig);
        QCOMPARE(rig.host.services.count(), 1);
    }

    void theLastRowOfAllCanGoAndComeBack_data() { addRows(); }
    void theLastRowOfAllCanGoAndComeBack()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        rig.field->setNum(1);
        TableRig::runSensors();
        const QList<QByteArray> before = rig.rows();
        rig.click("m_deleteButton");
        QCOMPARE(rig.field->getNum(), 0);
        TableRig::runSensors();
        verifyInStep(rig);
        rig.click("m_deleteButton"); // there is none
        QCOMPARE(rig.host.services.count(), 1);
        rig.host.services.undo(0);
        TableRig::runSensors();
        QCOMPARE(rig.rows(), before);
        verifyInStep(rig);
    }

    void theFirstRowOfAllIsInOrder_data() { addRows(); }
    void theFirstRowOfAllIsInOrder()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        rig.field->setNum(0);
        TableRig::runSensors();
        rig.click("m_addButton");
        QCOMPARE(rig.rows(), QList<QByteArray>({r.emptyRow}));
        QCOMPARE(rig.table().currentRow(), 0);
        TableRig::runSensors();
        verifyInStep(rig);
        rig.host.services.undo(0);
        TableRig::runSensors();
        QCOMPARE(rig.field->getNum(), 0);
        verifyInStep(rig);
    }
};

TAVRIK_TEST_MAIN(tst_MultipleValueRowsContract)
#include "tst_MultipleValueRowsContract.moc"
