#include "FieldEditors/MFWidgets/DvMFStringWidget.h"

#include "FieldEditors/DvFieldText.h"
#include "FieldEditors/DvMFieldTable.h"

#include <Inventor/fields/SoMFString.h>

DvMFStringWidget::DvMFStringWidget()
    : DvMFTextRows("MFString", DvMFieldTableItemDelegate::TextKind,
                   QStringLiteral("DvMFStringWidget"))
{
    m_handledType = SoMFString::getClassTypeId();
}

QString DvMFStringWidget::cellText(int row, int column) const
{
    if (column != 0 || !isRow(row))
        return {};
    return DvFieldText::toQString((*fieldAs<SoMFString>())[row]);
}

QByteArray DvMFStringWidget::rowValue(int row) const
{
    if (!isRow(row))
        return {};
    const SbString& value = (*fieldAs<SoMFString>())[row];
    return {value.getString(), value.getLength()};
}

void DvMFStringWidget::applyCell(int row, int, const QString& text)
{
    if (!isRow(row))
        return;
    if (field()->isOfType(SoMFString::getClassTypeId()))
        fieldAs<SoMFString>()->set1Value(row, DvFieldText::toSbString(text));
    else
        writeText(row, text);
    pushSetValue(row);
}

void DvMFStringWidget::swapRows(int row1, int row2)
{
    if (isRow(row1) && isRow(row2))
        table().swapRows(row1, row2);
}
