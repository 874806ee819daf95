#include "benchmarks/support/LazyModel.h"

#include <QHeaderView>
#include <QTableView>

#include <utility>

LazyModel::LazyModel(int rows, int columns, CellText text)
    : m_rows(rows), m_columns(columns), m_text(std::move(text))
{}

int LazyModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int LazyModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

QVariant LazyModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    return m_text(index.row(), index.column());
}

void LazyModel::setText(CellText text)
{
    beginResetModel();
    m_text = std::move(text);
    endResetModel();
}

void LazyModel::allChanged()
{
    emit dataChanged(index(0, 0), index(m_rows - 1, m_columns - 1));
}

void LazyModel::dress(QTableView& view)
{
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
}
