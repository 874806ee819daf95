#include "FieldEditors/DvMFieldCells.h"

#include "FieldEditors/DvMFieldItem.h"
#include "FieldEditors/DvMFieldTableItemDelegate.h"
#include "FieldEditors/DvMFieldWidget.h"
#include "FieldEditors/DvRowHeader.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

DvMFieldCells::DvMFieldCells(DvMFieldWidget& owner, QWidget* parent)
    : QTableWidget(parent), m_owner(owner)
{
    setDelegate(new DvMFieldTableItemDelegate(owner, nullptr));
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    buildHeaders();
    setCurrentCell(0, 0);
}

DvMFieldCells::~DvMFieldCells()
{
    // An editor that is open still would commit into an owner that is half gone.
    disconnect();
    m_delegate->discardOpenEditor();
    setItemDelegate(nullptr);
    delete m_delegate;
}

void DvMFieldCells::setDelegate(DvMFieldTableItemDelegate* delegate)
{
    setItemDelegate(delegate);
    delete m_delegate;
    m_delegate = delegate;
}

void DvMFieldCells::buildHeaders()
{
    setVerticalHeader(new DvRowHeader(this));
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    setTabKeyNavigation(false);
}

DvMFieldCells::Cell DvMFieldCells::cell(int row, int column)
{
    return (static_cast<Cell>(row) << 32U) | static_cast<Cell>(column);
}

QTableWidgetItem* DvMFieldCells::item(int row, int column) const
{
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
        return nullptr;
    QTableWidgetItem* found = QTableWidget::item(row, column);
    if (!found) {
        auto* const self = const_cast<DvMFieldCells*>(this);
        const QSignalBlocker blocker(model());
        found = self->newItem(row, column);
    }
    if (const auto* const own = dynamic_cast<const DvMFieldItem*>(found))
        own->place(row, column);
    return found;
}

QTableWidgetItem* DvMFieldCells::newItem(int row, int column)
{
    auto* const made = new DvMFieldItem(*this, row, column);
    setItem(row, column, made);
    return made;
}

QString DvMFieldCells::shownText(int row, int column) const
{
    const auto typed = m_typed.constFind(cell(row, column));
    return typed != m_typed.constEnd() ? *typed : m_owner.cellText(row, column);
}

void DvMFieldCells::keepTypedText(int row, int column, const QString& text)
{
    m_typed.insert(cell(row, column), text);
    update(model()->index(row, column));
}

void DvMFieldCells::notePainted(int row, int column)
{
    m_painted.insert(cell(row, column), m_owner.rowValue(row));
}

QPair<int, int> DvMFieldCells::visibleRows() const
{
    if (viewport()->height() < 1)
        return {0, -1};
    const int first = std::max(0, rowAt(0));
    const int last = rowAt(viewport()->height() - 1);
    return {first, last < 0 ? rowCount() - 1 : last};
}

void DvMFieldCells::refreshCells()
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

void DvMFieldCells::refreshRow(int row)
{
    const QByteArray value = m_owner.rowValue(row);
    for (int column = 0; column < columnCount(); ++column) {
        const auto painted = m_painted.constFind(cell(row, column));
        if (painted == m_painted.constEnd() || *painted != value)
            update(model()->index(row, column));
    }
}

void DvMFieldCells::paintEvent(QPaintEvent* event)
{
    constexpr int manyCells = 4096;
    if (m_painted.size() > manyCells)
        m_painted.clear();
    makeVisibleItems();
    QTableWidget::paintEvent(event);
}

void DvMFieldCells::makeVisibleItems()
{
    const QPair<int, int> rows = visibleRows();
    for (int row = rows.first; row <= rows.second; ++row) {
        for (int column = 0; column < columnCount(); ++column)
            item(row, column);
    }
}

void DvMFieldCells::fillEagerly()
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

void DvMFieldCells::rowsChanged()
{
    ++m_generation;
    m_typed.clear();
    m_painted.clear();
}

void DvMFieldCells::changeRowCount(int n)
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

void DvMFieldCells::resetRowCount(int n)
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

void DvMFieldCells::closeOpenEditor()
{
    m_delegate->finishOpenEditor();
}

void DvMFieldCells::takeRows(int first, int count)
{
    // An item that is deleted in its place makes the table look for it among all.
    for (int row = first; row < first + count; ++row) {
        for (int column = 0; column < columnCount(); ++column)
            delete takeItem(row, column);
    }
    model()->removeRows(first, count);
    rowsChanged();
    viewport()->update();
}

bool DvMFieldCells::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    if (index.isValid() && trigger != QAbstractItemView::NoEditTriggers)
        item(index.row(), index.column());
    return !m_owner.isReadOnly() && QTableWidget::edit(index, trigger, event);
}

bool DvMFieldCells::isTypedInto() const
{
    const QWidget* const editor = m_delegate->openEditor();
    return editor && (editor->hasFocus() || editor->isAncestorOf(QApplication::focusWidget()));
}
