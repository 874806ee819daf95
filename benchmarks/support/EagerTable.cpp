#include "benchmarks/support/EagerTable.h"

#include "benchmarks/support/LazyModel.h"

EagerTable::EagerTable(int columns) : QTableWidget(0, columns)
{
    LazyModel::dress(*this);
}

void EagerTable::fill(int rows, const CellText& text)
{
    setRowCount(rows);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columnCount(); ++column)
            setItem(row, column, new QTableWidgetItem(text(row, column)));
    }
}

void EagerTable::setTexts(const CellText& text)
{
    for (int row = 0; row < rowCount(); ++row) {
        for (int column = 0; column < columnCount(); ++column)
            item(row, column)->setText(text(row, column));
    }
}

void EagerTable::insertFilled(int row, const CellText& text)
{
    insertRow(row);
    // Texts set in the items that have moved would be looked for among all: new ones are quicker.
    fill(rowCount(), text);
}
