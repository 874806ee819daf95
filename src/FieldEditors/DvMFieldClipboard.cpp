#include "FieldEditors/DvMFieldClipboard.h"

#include "FieldEditors/DvMFieldTable.h"
#include "FieldEditors/DvMFieldTableItemDelegate.h"
#include "FieldEditors/DvMFieldWidget.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QRegularExpression>
#include <QToolTip>

#include <algorithm>

namespace {

const QChar s_tab = QLatin1Char('\t');
const QChar s_newLine = QLatin1Char('\n');
const QChar s_quote = QLatin1Char('"');

QString quoted(const QString& text)
{
    static const QRegularExpression s_special(QStringLiteral("[\t\r\n\"]"));
    if (!text.contains(s_special))
        return text;
    return s_quote + QString(text).replace(s_quote, QStringLiteral("\"\"")) + s_quote;
}

bool endsCell(const QString& text, int at)
{
    return at >= text.size() || text.at(at) == s_tab || text.at(at) == s_newLine;
}

/** Where the quotation mark that closes a cell stands; -1 if none does, and the cell is plain. */
int closingQuote(const QString& text, int start)
{
    for (int i = start + 1; i < text.size(); ++i) {
        if (text.at(i) != s_quote)
            continue;
        if (endsCell(text, i + 1))
            return i;
        if (text.at(i + 1) != s_quote)
            return -1;
        ++i;
    }
    return -1;
}

/** Reads the cell that begins at a place, and moves the place to the cell's end. */
QString takeCell(const QString& text, int& at)
{
    const int start = at;
    const int quote = !endsCell(text, at) && text.at(at) == s_quote ? closingQuote(text, at) : -1;
    if (quote >= 0) {
        at = quote + 1;
        return text.mid(start + 1, quote - start - 1).replace(QStringLiteral("\"\""), s_quote);
    }
    while (!endsCell(text, at))
        ++at;
    return text.mid(start, at - start);
}

/** The selected block that the current cell is in, else that cell alone. */
QTableWidgetSelectionRange blockOf(const DvMFieldTable& table)
{
    const int row = table.currentRow();
    const int column = table.currentColumn();
    for (const QTableWidgetSelectionRange& range : table.selectedRanges()) {
        if (row >= range.topRow() && row <= range.bottomRow() && column >= range.leftColumn() &&
            column <= range.rightColumn())
            return range;
    }
    return {row, column, row, column};
}

} // namespace

DvMFieldClipboard::DvMFieldClipboard(DvMFieldTable& table, DvMFieldWidget& owner)
    : QObject(&table), m_table(table), m_owner(owner)
{}

QString DvMFieldClipboard::toText(const Rows& rows)
{
    QStringList lines;
    for (const QStringList& row : rows) {
        QStringList cells;
        for (const QString& cell : row)
            cells << quoted(cell);
        lines << cells.join(s_tab);
    }
    return lines.join(s_newLine);
}

DvMFieldClipboard::Rows DvMFieldClipboard::fromText(const QString& text)
{
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    Rows rows(1);
    for (int at = 0; at <= lines.size(); ++at) {
        rows.last() << takeCell(lines, at);
        // The last line may have an end or not.
        if (at + 1 >= lines.size() && (at >= lines.size() || lines.at(at) == s_newLine))
            break;
        if (lines.at(at) == s_newLine)
            rows << QStringList();
    }
    return rows;
}

void DvMFieldClipboard::copy()
{
    const QTableWidgetSelectionRange block = blockOf(m_table);
    if (block.topRow() < 0)
        return;
    Rows rows;
    for (int row = block.topRow(); row <= block.bottomRow(); ++row) {
        rows << QStringList();
        for (int column = block.leftColumn(); column <= block.rightColumn(); ++column)
            rows.last() << m_table.shownText(row, column);
    }
    QApplication::clipboard()->setText(toText(rows));
}

bool DvMFieldClipboard::canPaste() const
{
    // The cells of some types are edited elsewhere than in the table.
    return !m_owner.isReadOnly() && m_table.editTriggers() != QAbstractItemView::NoEditTriggers;
}

void DvMFieldClipboard::paste()
{
    const QTableWidgetSelectionRange block = blockOf(m_table);
    const QString text = QApplication::clipboard()->text();
    if (!canPaste() || block.topRow() < 0 || text.isEmpty())
        return;
    m_table.closeOpenEditor();
    const int refused = enterRows(fromText(text), block.topRow(), block.leftColumn());
    if (refused > 0)
        QToolTip::showText(
            m_table.mapToGlobal(QPoint()),
            tr("Cells left as they are, since the text is no value for them: %1").arg(refused),
            &m_table);
}

int DvMFieldClipboard::enterRows(const Rows& rows, int firstRow, int firstColumn)
{
    int refused = 0;
    const int rowCount = std::min(rows.size(), m_table.rowCount() - firstRow);
    for (int row = 0; row < rowCount; ++row) {
        const QStringList& cells = rows.at(row);
        const int columnCount = std::min(cells.size(), m_table.columnCount() - firstColumn);
        for (int column = 0; column < columnCount; ++column) {
            if (!m_table.delegate().enterText(firstRow + row, firstColumn + column,
                                              cells.at(column)))
                ++refused;
        }
    }
    return refused;
}

void DvMFieldClipboard::popUpMenu(const QPoint& place)
{
    auto* const menu = new QMenu(&m_table);
    menu->setObjectName(QStringLiteral("m_cellMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Copy cells"), this, SLOT(copy()));
    menu->addAction(tr("Paste cells"), this, SLOT(paste()))->setEnabled(canPaste());
    menu->popup(place);
}
