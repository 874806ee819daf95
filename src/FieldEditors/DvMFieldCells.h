#pragma once

#include <QHash>
#include <QTableWidget>

class DvMFieldItem;
class DvMFieldTableItemDelegate;
class DvMFieldWidget;

/**
 * What the table of a multiple-value editor shows. The texts are the owner's, asked for when a cell
 * is painted; none is kept but those that were typed and not accepted.
 *
 * A table of up to eagerCells cells has an item in each; in a larger one a cell gets its item when
 * it comes into view, is asked for, selected or edited.
 */
class DvMFieldCells : public QTableWidget
{
    Q_OBJECT

public:
    static constexpr int eagerCells = 16384;

    DvMFieldCells(DvMFieldWidget& owner, QWidget* parent);
    ~DvMFieldCells() override;

    /** The item of a cell, made if it has none; null outside of the table. */
    QTableWidgetItem* item(int row, int column) const;
    /** What a cell shows: what was typed into it and not accepted, else the owner's text. */
    QString shownText(int row, int column) const;
    /** Shows a text in a cell until the next refresh. */
    void keepTypedText(int row, int column, const QString& text);
    /** Tells the table that a cell was painted, so that a refresh paints only what has changed. */
    void notePainted(int row, int column);
    /** Paints anew the visible cells of the rows whose value is another one now. */
    void refreshCells();
    /** Commits and closes the editor of a cell, if one is open. */
    void closeOpenEditor();
    DvMFieldTableItemDelegate& delegate() const { return *m_delegate; }

protected:
    void paintEvent(QPaintEvent* event) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    DvMFieldWidget& owner() const { return m_owner; }
    /** Puts another delegate in place of the one that the constructor made. */
    void setDelegate(DvMFieldTableItemDelegate* delegate);
    /** Whether the keys go to the open editor of a cell. */
    bool isTypedInto() const;
    /** Takes over another number of rows, wherever they have come or gone. */
    void changeRowCount(int n);
    /** Takes rows out of the table, as quickly as few as many. */
    void takeRows(int first, int count);

private:
    friend class DvMFieldItem;

    using Cell = quint64;
    static Cell cell(int row, int column);

    void buildHeaders();
    QTableWidgetItem* newItem(int row, int column);
    void fillEagerly();
    void makeVisibleItems();
    void refreshRow(int row);
    QPair<int, int> visibleRows() const;
    void rowsChanged();
    void resetRowCount(int n);

    DvMFieldWidget& m_owner;
    DvMFieldTableItemDelegate* m_delegate = nullptr; ///< owned
    unsigned m_generation = 0;                       ///< of the items' places
    QHash<Cell, QString> m_typed;
    QHash<Cell, QByteArray> m_painted; ///< the values of their rows
};
