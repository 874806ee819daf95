#pragma once

#include <QHash>
#include <QTableWidget>

class DvMFieldClipboard;
class DvMFieldItem;
class DvMFieldTableItemDelegate;
class DvMFieldWidget;

/**
 * The table of a multiple-value editor: a row for each value of the field, a column for each
 * component. The texts are the owner's, asked for when a cell is painted; the table keeps none but
 * those that were typed and not accepted. It never changes the field's rows itself: what the
 * buttons and keys do goes to the host as commands.
 *
 * A table of up to eagerCells cells has an item in each; in a larger one a cell gets its item when
 * it comes into view, is asked for, selected or edited.
 */
class DvMFieldTable : public QTableWidget
{
    Q_OBJECT

public:
    static constexpr int eagerCells = 16384;

    DvMFieldTable(DvMFieldWidget& owner, QWidget* parent, const char* name = nullptr);
    ~DvMFieldTable() override;

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
    bool isRangeSelection() const { return m_rangeSelection; }

public slots:
    void setNumRows(int n);
    void swapUpRow();
    void swapDownRow();
    virtual void deleteRow();
    virtual void addRow();
    void showTableRow(int row);
    virtual void swapRows(int row1, int row2);

protected slots:
    void editorDestroyed(QObject* editor) override;
    void s_currentCellChanged(int row);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    DvMFieldWidget& owner() const { return m_owner; }
    /** Puts another delegate in place of the one that the constructor made. */
    void setDelegate(DvMFieldTableItemDelegate* delegate);

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
    void changeRowCount(int n);
    void resetRowCount(int n);
    void followField();
    bool isTypedInto() const;
    void pressRowKey(QKeyEvent* event);
    void endRangeSelection();
    void moveRow(int from, int to);
    void deleteOneRow();
    void deleteSelectedRange();
    void takeRows(int first, int count);

    DvMFieldWidget& m_owner;
    DvMFieldTableItemDelegate* m_delegate = nullptr; ///< owned
    DvMFieldClipboard* m_clipboard;
    bool m_rangeSelection = false; ///< while Shift is held
    unsigned m_generation = 0;     ///< of the items' places
    QHash<Cell, QString> m_typed;
    QHash<Cell, QByteArray> m_painted; ///< the values of their rows
};
