#pragma once

#include "benchmarks/support/CellText.h"

#include <QTableWidget>

/** The reference: a table with an item in every cell, each filled with its text at once. */
class EagerTable : public QTableWidget
{
public:
    explicit EagerTable(int columns);

    /** Shows this many rows, a new item in each cell. */
    void fill(int rows, const CellText& text);
    /** Sets the text of each item anew. */
    void setTexts(const CellText& text);
    /** Inserts a row and fills all cells again, since all below have another text now. */
    void insertFilled(int row, const CellText& text);
};
