#include "tests/contracts/TableEditors.h"

namespace {

std::vector<TableRow> allRows()
{
    std::vector<TableRow> all = numberTableRows();
    for (const auto& family : {columnTableRows(), otherTableRows()})
        all.insert(all.end(), family.begin(), family.end());
    return all;
}

} // namespace

const std::vector<TableRow>& TableEditors::rows()
{
    static const std::vector<TableRow> s_rows = allRows();
    return s_rows;
}

void TableEditors::addRows()
{
    QTest::addColumn<int>("row");
    int number = 0;
    for (const TableRow& row : rows())
        QTest::newRow(row.name) << number++;
}

void TableEditors::addBeginnings()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("beginning");
    int number = 0;
    for (const TableRow& row : rows()) {
        int beginning = 0;
        for (const TableRow::Beginning& begun : row.beginnings) {
            const QByteArray name = QByteArray(row.name) + ", " + begun.name;
            QTest::newRow(name.constData()) << number << beginning++;
        }
        ++number;
    }
}

const TableRow& TableEditors::fetchRow()
{
    QFETCH(int, row);
    return rows()[static_cast<std::size_t>(row)];
}

const TableRow::Beginning& TableEditors::fetchBeginning()
{
    QFETCH(int, beginning);
    return fetchRow().beginnings[static_cast<std::size_t>(beginning)];
}

void TableEditors::verifyInStep(const TableRig& rig)
{
    const int rows = rig.field->getNum();
    QCOMPARE(rig.table().rowCount(), rows);
    QCOMPARE(rig.accessBox().maximum(), rows);
    QCOMPARE(rig.accessBox().minimum(), rows > 0 ? 1 : 0);
    if (rig.table().currentRow() >= 0)
        QCOMPARE(rig.accessBox().value(), rig.table().currentRow() + 1);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < rig.table().columnCount(); ++column)
            QCOMPARE(rig.table().item(row, column)->text(), rig.editor.cellText(row, column));
    }
}
