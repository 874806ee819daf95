#include "FieldEditors/DvMFTextRows.h"

#include "FieldEditors/DvFieldText.h"
#include "FieldEditors/DvMFieldTable.h"
#include "scenegraph/SoFieldText.h"
#include "scenegraph/SoMFieldRows.h"

DvMFTextRows::DvMFTextRows(const char* typeName, int valueKind, const QString& objectName)
    : DvMFieldWidget({typeName, {"Value"}, valueKind}, objectName)
{}

QString DvMFTextRows::cellText(int row, int column) const
{
    if (column != 0 || !isRow(row))
        return {};
    SbString text;
    SoFieldText::get1(field(), row, text);
    return DvFieldText::toQString(text);
}

void DvMFTextRows::writeText(int row, const QString& text)
{
    if (isRow(row))
        SoMFieldRows::set1(field(), row, DvFieldText::toSbString(text));
}

void DvMFTextRows::swapRows(int row1, int row2)
{
    if (isRow(row1) && isRow(row2))
        table().swapRows(row1, row2);
}
