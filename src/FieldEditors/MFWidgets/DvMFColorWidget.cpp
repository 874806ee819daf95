#include "FieldEditors/MFWidgets/DvMFColorWidget.h"

#include "FieldEditors/DvCommands.h"
#include "FieldEditors/TvkMFSetFieldValueCommand.h"

#include <Inventor/fields/SoMFColor.h>

DvMFColorWidget::DvMFColorWidget() : DvMFVec3fWidget("MFColor", QStringLiteral("DvMFColorWidget"))
{
    m_handledType = SoMFColor::getClassTypeId();
}

DvMFieldTable* DvMFColorWidget::newTable()
{
    return new DvMFColorTable(*this, *this, frame(), "m_table");
}

void DvMFColorWidget::fieldReleased()
{
    static_cast<DvMFColorTable&>(table()).closeDialog();
}

DvMFColorWidget::Numbers DvMFColorWidget::numbersAt(int row) const
{
    return DvVec3fView::numbers((*fieldAs<SoMFColor>())[row]);
}

void DvMFColorWidget::write(int row, const Numbers& numbers)
{
    const SbVec3f rgb = DvVec3fView::value(numbers);
    fieldAs<SoMFColor>()->set1Value(row, SbColor(rgb[0], rgb[1], rgb[2]));
    DvCommands::push<TvkMFSetFieldValueCommand>(field(), row);
}

void DvMFColorWidget::setColor(int row, const QColor& color)
{
    write(row, {color.red() / 255.0, color.green() / 255.0, color.blue() / 255.0});
}

void DvMFColorWidget::swapRows(int row1, int row2)
{
    if (!isRow(row1) || !isRow(row2))
        return;
    auto* const colors = fieldAs<SoMFColor>();
    const SbColor first = (*colors)[row1];
    colors->set1Value(row1, SbColor((*colors)[row2]));
    colors->set1Value(row2, first);
}
