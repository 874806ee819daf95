#pragma once

#include "benchmarks/support/CellText.h"

#include <QAbstractTableModel>

class QTableView;

/** The least that a table of these texts can cost: a model that keeps nothing and is only asked. */
class LazyModel : public QAbstractTableModel
{
public:
    LazyModel(int rows, int columns, CellText text);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /** Other texts from now on: the model is reset. */
    void setText(CellText text);
    /** Says that every text may have changed. */
    void allChanged();

    /** Gives a view the headers and scroll bars that the editors' table has. */
    static void dress(QTableView& view);

private:
    const int m_rows;
    const int m_columns;
    CellText m_text;
};
