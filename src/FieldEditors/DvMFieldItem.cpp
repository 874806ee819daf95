#include "FieldEditors/DvMFieldItem.h"

#include "FieldEditors/DvMFieldCells.h"

namespace {

bool isTextRole(int role)
{
    return role == Qt::DisplayRole || role == Qt::EditRole;
}

} // namespace

DvMFieldItem::DvMFieldItem(DvMFieldCells& table, int row, int column)
    : m_table(table), m_row(row), m_column(column), m_generation(table.m_generation)
{}

void DvMFieldItem::place(int row, int column) const
{
    m_row = row;
    m_column = column;
    m_generation = m_table.m_generation;
}

void DvMFieldItem::findPlace() const
{
    if (m_generation != m_table.m_generation)
        place(row(), column());
}

QVariant DvMFieldItem::data(int role) const
{
    if (!isTextRole(role))
        return QTableWidgetItem::data(role);
    findPlace();
    return m_table.shownText(m_row, m_column);
}

void DvMFieldItem::setData(int role, const QVariant& value)
{
    if (!isTextRole(role)) {
        QTableWidgetItem::setData(role, value);
        return;
    }
    findPlace();
    m_table.keepTypedText(m_row, m_column, value.toString());
}
