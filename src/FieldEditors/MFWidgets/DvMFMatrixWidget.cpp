#include "FieldEditors/MFWidgets/DvMFMatrixWidget.h"

#include "FieldEditors/DvFieldText.h"
#include "FieldEditors/DvMFieldTable.h"
#include "FieldEditors/DvValueViews.h"
#include "scenegraph/SoFieldText.h"

#include <Inventor/fields/SoMFMatrix.h>

DvMFMatrixWidget::DvMFMatrixWidget()
    : DvTablePopupWidget(4, 4, {"MFMatrix", {"Value"}, DvMFieldTableItemDelegate::TextKind},
                         QStringLiteral("DvMFMatrixWidget"))
{
    m_handledType = SoMFMatrix::getClassTypeId();
}

QString DvMFMatrixWidget::cellText(int row, int column) const
{
    if (column != 0 || !isRow(row))
        return {};
    SbString text;
    SoFieldText::get1(field(), row, text);
    return DvFieldText::toQString(text).simplified();
}

QByteArray DvMFMatrixWidget::rowValue(int row) const
{
    // The texts of one matrix differ in how far Coin indents them.
    return isRow(row) ? bytesOf((*fieldAs<SoMFMatrix>())[row].getValue()) : QByteArray();
}

void DvMFMatrixWidget::showRow(DvNumberLines& lines, int row)
{
    const DvMatrixView::Numbers numbers = DvMatrixView::numbers((*fieldAs<SoMFMatrix>())[row]);
    for (std::size_t i = 0; i < numbers.size(); ++i)
        lines.show(i, numbers[i]);
}

void DvMFMatrixWidget::applyCell(int row, int, const QString&)
{
    if (!isRow(row))
        return;
    auto* const matrices = fieldAs<SoMFMatrix>();
    DvMatrixView::Numbers numbers = DvMatrixView::numbers((*matrices)[row]);
    for (std::size_t i = 0; i < numbers.size(); ++i)
        numbers[i] = lines().number(i, numbers[i]);
    matrices->set1Value(row, DvMatrixView::value(numbers));
    pushSetValue(row);
}

void DvMFMatrixWidget::swapRows(int row1, int row2)
{
    if (!isRow(row1) || !isRow(row2))
        return;
    auto* const matrices = fieldAs<SoMFMatrix>();
    const SbMatrix first = (*matrices)[row1];
    matrices->set1Value(row1, SbMatrix((*matrices)[row2]));
    matrices->set1Value(row2, first);
}
