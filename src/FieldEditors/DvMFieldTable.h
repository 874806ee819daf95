#pragma once

#include "FieldEditors/DvMFieldCells.h"

class DvMFieldClipboard;

/**
 * The table of a multiple-value editor: a row for each value of the field, a column for each
 * component. It never changes the field's rows itself: what the buttons and keys do goes to the
 * host as commands.
 */
class DvMFieldTable : public DvMFieldCells
{
    Q_OBJECT

public:
    DvMFieldTable(DvMFieldWidget& owner, QWidget* parent, const char* name = nullptr);

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

private:
    void followField();
    void pressRowKey(QKeyEvent* event);
    void endRangeSelection();
    void moveRow(int from, int to);
    void deleteOneRow();
    void deleteSelectedRange();

    DvMFieldClipboard* m_clipboard;
    bool m_rangeSelection = false; ///< while Shift is held
};
