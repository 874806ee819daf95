#include "FieldEditors/DvMFieldTable.h"

#include "FieldEditors/AccessButtonPrivate.h"
#include "FieldEditors/DvCommands.h"
#include "FieldEditors/DvMFieldClipboard.h"
#include "FieldEditors/DvMFieldItem.h"
#include "FieldEditors/DvMFieldTableItemDelegate.h"
#include "FieldEditors/DvMFieldWidget.h"
#include "FieldEditors/DvRowHeader.h"
#include "FieldEditors/DvSlider.h"
#include "FieldEditors/TvkMFAddRowsCommand.h"
#include "FieldEditors/TvkMFDeleteRowsCommand.h"
#include "FieldEditors/TvkMFSwapRowsCommand.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <cstdio>

DvMFieldTable::DvMFieldTable(DvMFieldWidget& owner, QWidget* parent, const char* name)
    : QTableWidget(parent), m_owner(owner), m_clipboard(new DvMFieldClipboard(*this, owner))
{
    setObjectName(QLatin1String(name ? name : "DvMFieldTable"));
    setDelegate(new DvMFieldTableItemDelegate(owner, nullptr));
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    buildHeaders();
    setCurrentCell(0, 0);
    connect(this, SIGNAL(currentCellChanged(int, int, int, int)), SLOT(s_currentCellChanged(int)));
}

DvMFieldTable::~DvMFieldTable()
{
    // An editor that is open still would commit into an owner that is half gone.
    disconnect();
    m_delegate->discardOpenEditor();
    setItemDelegate(nullptr);
    delete m_delegate;
}

void DvMFieldTable::setDelegate(DvMFieldTableItemDelegate* delegate)
{
    setItemDelegate(delegate);
    delete m_delegate;
    m_delegate = delegate;
}

void DvMFieldTable::buildHeaders()
{
    setVerticalHeader(new DvRowHeader(this));
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    setTabKeyNavigation(false);
}

DvMFieldTable::Cell DvMFieldTable::cell(int row, int column)
{
    return (static_cast<Cell>(row) << 32U) | static_cast<Cell>(column);
}

QTableWidgetItem* DvMFieldTable::item(int row, int column) const
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
        return nullptr;
    QTableWidgetItem* found = QTableWidget::item(row, column);
    if (!found) {
        auto* const self = const_cast<DvMFieldTable*>(this);
        const QSignalBlocker blocker(model());
        found = self->newItem(row, column);
    }
    if (const auto* const own = dynamic_cast<const DvMFieldItem*>(found))
        own->place(row, column);
    return found;
}

QTableWidgetItem* DvMFieldTable::newItem(int row, int column)
{
    auto* const made = new DvMFieldItem(*this, row, column);
    setItem(row, column, made);
    return made;
}

QString DvMFieldTable::shownText(int row, int column) const
{
    const auto typed = m_typed.constFind(cell(row, column));
    return typed != m_typed.constEnd() ? *typed : m_owner.cellText(row, column);
}

void DvMFieldTable::keepTypedText(int row, int column, const QString& text)
{
    m_typed.insert(cell(row, column), text);
    update(model()->index(row, column));
}

void DvMFieldTable::notePainted(int row, int column)
{
    m_painted.insert(cell(row, column), m_owner.rowValue(row));
}

QPair<int, int> DvMFieldTable::visibleRows() const
{
    if (viewport()->height() < 1)
        return {0, -1};
    const int first = std::max(0, rowAt(0));
    const int last = rowAt(viewport()->height() - 1);
    return {first, last < 0 ? rowCount() - 1 : last};
}

void DvMFieldTable::refreshCells()
{
    // These show something else than their rows' values.
    for (const Cell typed : m_typed.keys())
        m_painted.remove(typed);
    m_typed.clear();
    m_delegate->refreshOpenEditor();
    const QPair<int, int> rows = visibleRows();
    for (int row = rows.first; row <= rows.second; ++row)
        refreshRow(row);
}

void DvMFieldTable::refreshRow(int row)
{
    const QByteArray value = m_owner.rowValue(row);
    for (int column = 0; column < columnCount(); ++column) {
        const auto painted = m_painted.constFind(cell(row, column));
        if (painted == m_painted.constEnd() || *painted != value)
            update(model()->index(row, column));
    }
}

void DvMFieldTable::paintEvent(QPaintEvent* event)
{
    constexpr int manyCells = 4096;
    if (m_painted.size() > manyCells)
        m_painted.clear();
    makeVisibleItems();
    QTableWidget::paintEvent(event);
}

void DvMFieldTable::makeVisibleItems()
{
    const QPair<int, int> rows = visibleRows();
    for (int row = rows.first; row <= rows.second; ++row) {
        for (int column = 0; column < columnCount(); ++column)
            item(row, column);
    }
}

void DvMFieldTable::fillEagerly()
{
    if (rowCount() * static_cast<qint64>(columnCount()) > eagerCells)
        return;
    const QSignalBlocker blocker(model());
    const int columns = columnCount();
    for (int row = 0; row < rowCount(); ++row) {
        for (int column = 0; column < columns; ++column) {
            // Most are new ones, of which item() would make sure one by one.
            if (QTableWidget::item(row, column))
                item(row, column);
            else
                newItem(row, column);
        }
    }
}

void DvMFieldTable::rowsChanged()
{
    ++m_generation;
    m_typed.clear();
    m_painted.clear();
}

void DvMFieldTable::setNumRows(int n)
{
    if (n < 0)
        return;
    m_owner.accessBox().setRowCount(n);
    if (n != rowCount())
        changeRowCount(n);
}

void DvMFieldTable::changeRowCount(int n)
{
    if (m_delegate->openRow() >= n)
        m_delegate->discardOpenEditor();
    if (m_delegate->openEditor())
        setRowCount(n);
    else
        resetRowCount(n);
    rowsChanged();
    fillEagerly();
}

void DvMFieldTable::resetRowCount(int n)
{
    const int row = n > 0 ? std::clamp(currentRow(), 0, n - 1) : -1;
    const int column = std::max(currentColumn(), 0);
    const int scrolled = verticalScrollBar()->value();
    {
        // The views are told once, at the end, instead of section by section.
        const QSignalBlocker blocker(model());
        setRowCount(n);
    }
    verticalHeader()->reset();
    reset();
    setCurrentCell(row, column);
    verticalScrollBar()->setValue(scrolled);
}

void DvMFieldTable::followField()
{
    // The field may have changed and its sensor not yet said so.
    closeOpenEditor();
    setNumRows(m_owner.rowCount());
}

void DvMFieldTable::closeOpenEditor()
{
    m_delegate->finishOpenEditor();
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
        m_owner.accessBox().setNewValue(row);
}

void DvMFieldTable::swapUpRow()
{
    const int row = m_owner.accessBox().row();
    std::fprintf(stderr, "DvMFieldTable::swapUpRow() %d\n", row);
    if (row > 0)
        moveRow(row, row - 1);
}

void DvMFieldTable::swapDownRow()
{
    const int row = m_owner.accessBox().row();
    std::fprintf(stderr, "DvMFieldTable::swapDownRow() %d\n", row);
    if (row > -1 && row < rowCount() - 1)
        moveRow(row, row + 1);
}

void DvMFieldTable::moveRow(int from, int to)
{
    if (m_owner.isReadOnly())
        return;
    followField();
    if (from >= rowCount() || to >= rowCount())
        return;
    swapRows(from, to);
    setCurrentCell(to, 0);
    m_owner.accessBox().setNewValue(to);
}

void DvMFieldTable::swapRows(int row1, int row2)
{
    if (m_owner.field())
        DvCommands::push<TvkMFSwapRowsCommand>(m_owner.field(), row1, row2);
}

void DvMFieldTable::addRow()
{
    if (!m_owner.field() || m_owner.isReadOnly())
        return;
    followField();
    const int row = currentRow() + 1;
    // Rows have no texts of their own: at the end, where no others have to move, one is made
    // soonest.
    insertRow(rowCount());
    for (int column = 0; column < columnCount(); ++column)
        item(row, column);
    m_owner.accessBox().setRowCount(rowCount());
    DvCommands::push<TvkMFAddRowsCommand>(m_owner.field(), row, 1);
    // The row above the new one stays current.
    const int previous = row < 1 ? 0 : row;
    setCurrentCell(row < 1 ? row : row - 1, 0);
    emit currentCellChanged(currentRow(), 0, previous, 0);
}

void DvMFieldTable::deleteRow()
{
    if (!m_owner.field() || m_owner.isReadOnly())
        return;
    followField();
    if (m_rangeSelection)
        deleteSelectedRange();
    else
        deleteOneRow();
}

void DvMFieldTable::deleteOneRow()
{
    const int row = currentRow();
    if (row == -1)
        return;
    m_owner.accessBox().setRowCount(rowCount() - 1);
    DvCommands::push<TvkMFDeleteRowsCommand>(m_owner.field(), row, 1);
    takeRows(row, 1);
}

void DvMFieldTable::deleteSelectedRange()
{
    const QList<QTableWidgetSelectionRange> ranges = selectedRanges();
    if (ranges.isEmpty())
        return;
    const int top = ranges.first().topRow();
    const int count = ranges.first().bottomRow() - top + 1;
    m_owner.accessBox().setRowCount(rowCount() - count);
    DvCommands::push<TvkMFDeleteRowsCommand>(m_owner.field(), top, count);
    takeRows(top, count);
}

void DvMFieldTable::takeRows(int first, int count)
{
    // An item that is deleted in its place makes the table look for it among all.
    for (int row = first; row < first + count; ++row) {
        for (int column = 0; column < columnCount(); ++column)
            delete takeItem(row, column);
    }
    model()->removeRows(first, count);
    rowsChanged();
    // The current cell has moved up with its row, of which no signal tells.
    s_currentCellChanged(currentRow());
    viewport()->update();
}

bool DvMFieldTable::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    if (index.isValid() && trigger != QAbstractItemView::NoEditTriggers)
        item(index.row(), index.column());
    return !m_owner.isReadOnly() && QTableWidget::edit(index, trigger, event);
}

bool DvMFieldTable::isTypedInto() const
{
    const QWidget* const editor = m_delegate->openEditor();
    return editor && (editor->hasFocus() || editor->isAncestorOf(QApplication::focusWidget()));
}

void DvMFieldTable::keyPressEvent(QKeyEvent* event)
{
    // What a cell's editor leaves of the keys means no rows and no block.
    if (isTypedInto())
        QTableWidget::keyPressEvent(event);
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
        QTableWidget::keyPressEvent(event);
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
    m_owner.s_showWhetherEditable();
    QTableWidget::focusInEvent(event);
}

void DvMFieldTable::focusOutEvent(QFocusEvent* event)
{
    // Whoever has the keys now hears of the release.
    if (m_rangeSelection)
        endRangeSelection();
    QTableWidget::focusOutEvent(event);
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
    QTableWidget::editorDestroyed(editor);
}
