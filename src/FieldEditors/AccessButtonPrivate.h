#pragma once

#include <QSpinBox>

/** The spin box that leads to a row: it shows numbers from 1 where the table counts from 0. */
class AccessButtonPrivate final : public QSpinBox
{
    Q_OBJECT

public:
    AccessButtonPrivate(int minimum, int maximum, int step, QWidget* parent, const char* name);
    AccessButtonPrivate(QWidget* parent, const char* name);

    /** The rows that there are: 1 to `rows`, or just 0. The value follows without a signal. */
    void setRowCount(int rows);
    /** The table's row, counted from 0, also if its number has only been typed; -1 for none. */
    int row();

public slots:
    /** Shows a table's row; nobody takes that for a user's wish to go there. */
    void setNewValue(int value);

protected:
    /** Return leads to the row once more, also when the number has not changed. */
    void keyPressEvent(QKeyEvent* event) override;
};
