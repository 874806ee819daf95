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
    if (col != 0 || owner().isReadOnly())
        return;
    const unsigned edited = owner().fieldNumber();
    const QColor chosen = QColorDialog::getColor(rowColor(row), this, tr("color dialog"));
    // While the dialog was open, another field may have been selected, or this one may have died.
    if (chosen.isValid() && edited == owner().fieldNumber() && owner().isRow(row))
        m_colorOwner.setColor(row, chosen);
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
