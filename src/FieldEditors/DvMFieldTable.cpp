#include "FieldEditors/DvMFieldTable.h"

#include "FieldEditors/AccessButtonPrivate.h"
#include "FieldEditors/DvCommands.h"
#include "FieldEditors/DvMFieldClipboard.h"
#include "FieldEditors/DvMFieldWidget.h"
#include "FieldEditors/DvSlider.h"
#include "FieldEditors/TvkMFAddRowsCommand.h"
#include "FieldEditors/TvkMFDeleteRowsCommand.h"
#include "FieldEditors/TvkMFSwapRowsCommand.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

#include <cstdio>

DvMFieldTable::DvMFieldTable(DvMFieldWidget& owner, QWidget* parent, const char* name)
    : DvMFieldCells(owner, parent), m_clipboard(new DvMFieldClipboard(*this, owner))
{
    setObjectName(QLatin1String(name ? name : "DvMFieldTable"));
    connect(this, SIGNAL(currentCellChanged(int, int, int, int)), SLOT(s_currentCellChanged(int)));
}

void DvMFieldTable::setNumRows(int n)
{
    if (n < 0)
        return;
    owner().accessBox().setRowCount(n);
    if (n != rowCount())
        changeRowCount(n);
}

void DvMFieldTable::followField()
{
    // The field may have changed and its sensor not yet said so.
    closeOpenEditor();
    setNumRows(owner().rowCount());
}

void DvMFieldTable::showTableRow(int row)
{
    if (row < 0 || row >= rowCount())
        return;
    QTableWidgetItem* const shown = item(row, 0);
    scrollToItem(shown);
    setCurrentItem(shown);
}

void DvMFieldTable::s_currentCellChanged(int row)
{
    if (row >= 0)
        owner().accessBox().setNewValue(row);
}

void DvMFieldTable::swapUpRow()
{
    const int row = owner().accessBox().row();
    std::fprintf(stderr, "DvMFieldTable::swapUpRow() %d\n", row);
    if (row > 0)
        moveRow(row, row - 1);
}

void DvMFieldTable::swapDownRow()
{
    const int row = owner().accessBox().row();
    std::fprintf(stderr, "DvMFieldTable::swapDownRow() %d\n", row);
    if (row > -1 && row < rowCount() - 1)
        moveRow(row, row + 1);
}

void DvMFieldTable::moveRow(int from, int to)
{
    if (owner().isReadOnly())
        return;
    followField();
    if (from >= rowCount() || to >= rowCount())
        return;
    swapRows(from, to);
    setCurrentCell(to, 0);
    owner().accessBox().setNewValue(to);
}

void DvMFieldTable::swapRows(int row1, int row2)
{
    if (owner().field())
        DvCommands::push<TvkMFSwapRowsCommand>(owner().field(), row1, row2);
}

void DvMFieldTable::addRow()
{
    if (!owner().field() || owner().isReadOnly())
        return;
    followField();
    const int row = currentRow() + 1;
    // Rows have no texts of their own: at the end, where no others have to move, one is made
    // soonest.
    insertRow(rowCount());
    for (int column = 0; column < columnCount(); ++column)
        item(row, column);
    owner().accessBox().setRowCount(rowCount());
    DvCommands::push<TvkMFAddRowsCommand>(owner().field(), row, 1);
    // The row above the new one stays current.
    const int previous = row < 1 ? 0 : row;
    setCurrentCell(row < 1 ? row : row - 1, 0);
    emit currentCellChanged(currentRow(), 0, previous, 0);
}

void DvMFieldTable::deleteRow()
{
    if (!owner().field() || owner().isReadOnly())
        return;
    followField();
    if (m_rangeSelection)
        deleteSelectedRange();
    else
        deleteOneRow();
    // The current cell moves up with its row, of which no signal tells.
    s_currentCellChanged(currentRow());
}

void DvMFieldTable::deleteOneRow()
{
    const int row = currentRow();
    if (row == -1)
        return;
    owner().accessBox().setRowCount(rowCount() - 1);
    DvCommands::push<TvkMFDeleteRowsCommand>(owner().field(), row, 1);
    takeRows(row, 1);
}

void DvMFieldTable::deleteSelectedRange()
{
    const QList<QTableWidgetSelectionRange> ranges = selectedRanges();
    if (ranges.isEmpty())
        return;
    const int top = ranges.first().topRow();
    const int count = ranges.first().bottomRow() - top + 1;
    owner().accessBox().setRowCount(rowCount() - count);
    DvCommands::push<TvkMFDeleteRowsCommand>(owner().field(), top, count);
    takeRows(top, count);
}

void DvMFieldTable::keyPressEvent(QKeyEvent* event)
{
    // What a cell's editor leaves of the keys means no rows and no block.
    if (isTypedInto())
        DvMFieldCells::keyPressEvent(event);
    else if (event->matches(QKeySequence::Copy))
        m_clipboard->copy();
    else if (event->matches(QKeySequence::Paste))
        m_clipboard->paste();
    else
        pressRowKey(event);
    event->accept();
}

void DvMFieldTable::pressRowKey(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
        addRow();
        break;
    case Qt::Key_Minus:
    case Qt::Key_Delete:
        deleteRow();
        break;
    case Qt::Key_Shift:
        setSelectionMode(QAbstractItemView::ContiguousSelection);
        m_rangeSelection = true;
        break;
    default:
        DvMFieldCells::keyPressEvent(event);
    }
}

void DvMFieldTable::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Shift || isTypedInto()) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    endRangeSelection();
}

void DvMFieldTable::endRangeSelection()
{
    // Kept on purpose: from the first release on, rows are selected only while Shift is held.
    setSelectionMode(QAbstractItemView::NoSelection);
    m_rangeSelection = false;
}

void DvMFieldTable::focusInEvent(QFocusEvent* event)
{
    owner().s_showWhetherEditable();
    DvMFieldCells::focusInEvent(event);
}

void DvMFieldTable::focusOutEvent(QFocusEvent* event)
{
    // Whoever has the keys now hears of the release.
    if (m_rangeSelection)
        endRangeSelection();
    DvMFieldCells::focusOutEvent(event);
}

void DvMFieldTable::contextMenuEvent(QContextMenuEvent* event)
{
    m_clipboard->popUpMenu(event->globalPos());
}

void DvMFieldTable::editorDestroyed(QObject* editor)
{
    if (!editor)
        return;
    // A slider that the mouse or the keyboard is still in goes on being edited.
    const auto* const slider = qobject_cast<DvSlider*>(editor);
    if (slider && (slider->rect().contains(slider->mapFromGlobal(QCursor::pos())) ||
                   slider->isAncestorOf(focusWidget())))
        return;
    DvMFieldCells::editorDestroyed(editor);
}
