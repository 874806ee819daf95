#pragma once

#include <QObject>
#include <QStringList>
#include <QVector>

class DvMFieldTable;
class DvMFieldWidget;
class QPoint;

/**
 * Copies a block of a table's cells as tab-separated text, a line for each row, and pastes such a
 * text: each cell as if it had been typed, from the first cell of the block on. The block is the
 * selected one if the current cell is in it, else that cell. What would fall outside of the table
 * is dropped.
 *
 * A text that holds a tab, a line's end or a quotation mark is quoted as spreadsheets do.
 */
class DvMFieldClipboard : public QObject
{
    Q_OBJECT

public:
    DvMFieldClipboard(DvMFieldTable& table, DvMFieldWidget& owner);

    /** Whether cells of the table can be pasted into: they can be typed into, too. */
    bool canPaste() const;
    /** Shows the menu of the two, at a place of the screen. */
    void popUpMenu(const QPoint& place);

    using Rows = QVector<QStringList>;
    static QString toText(const Rows& rows);
    static Rows fromText(const QString& text);

public slots:
    void copy();
    void paste();

private:
    int enterRows(const Rows& rows, int firstRow, int firstColumn);

    DvMFieldTable& m_table;
    DvMFieldWidget& m_owner;
};
