#pragma once

#include <QTableWidgetItem>

class DvMFieldCells;

/** The item of one cell; it holds no text of its own. */
class DvMFieldItem final : public QTableWidgetItem
{
public:
    DvMFieldItem(DvMFieldCells& table, int row, int column);

    /** Tells the item where it stands, which is dear to find out once rows have moved. */
    void place(int row, int column) const;

    QVariant data(int role) const override;
    void setData(int role, const QVariant& value) override;

private:
    void findPlace() const;

    DvMFieldCells& m_table;
    mutable int m_row;
    mutable int m_column;
    mutable unsigned m_generation;
};
