#include "FieldEditors/DvMFColorTable.h"

#include "FieldEditors/DvMFieldWidget.h"

#include <QColorDialog>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

int channel(const QString& text)
{
    const double component = text.toDouble();
    return std::isnan(component) ? 0 : static_cast<int>(std::clamp(component, 0.0, 1.0) * 255.0);
}

} // namespace

DvMFColorTable::DvMFColorTable(DvMFieldWidget& owner, DvColorOwner& colorOwner, QWidget* parent,
                               const char* name)
    : DvMFieldTable(owner, parent, name), m_colorOwner(colorOwner)
{
    setDelegate(new DvMFColorTableItemDelegate(owner, nullptr));
    connect(this, SIGNAL(cellClicked(int, int)), SLOT(getColorFromEditor(int, int)));
}

QColor DvMFColorTable::rowColor(int row) const
{
    return {channel(shownText(row, 0)), channel(shownText(row, 1)), channel(shownText(row, 2)),
            255};
}

void DvMFColorTable::getColorFromEditor(int row, int col)
{
    if (col != 0 || m_dialog || owner().isReadOnly() || !owner().isRow(row))
        return;
    m_dialogRow = row;
    // Waited for in no loop of its own: the editor may die meanwhile, and this table with it.
    m_dialog = new QColorDialog(rowColor(row), this);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->setWindowTitle(tr("color dialog"));
    m_dialog->open(this, SLOT(s_colorSelected(QColor)));
}

void DvMFColorTable::s_colorSelected(const QColor& color)
{
    // The row may have gone while the dialog was open. Kept on purpose: a colour that was only
    // confirmed is written like any other, in the dialog's eight bits a channel.
    if (color.isValid() && !owner().isReadOnly() && owner().isRow(m_dialogRow))
        m_colorOwner.setColor(m_dialogRow, color);
}

void DvMFColorTable::closeDialog()
{
    if (QColorDialog* const dialog = m_dialog)
        dialog->reject();
}

void DvMFColorTableItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                       const QModelIndex& index) const
{
    auto& table = static_cast<DvMFColorTable&>(owner().table());
    const QColor color = table.rowColor(index.row());
    const QString text = table.shownText(index.row(), index.column());
    table.notePainted(index.row(), index.column());
    painter->save();
    painter->fillRect(option.rect, color);
    // The text stays readable, whatever the colour.
    drawText(painter, option, text, qGray(color.rgb()) < 128 ? Qt::white : Qt::black);
    painter->restore();
}
