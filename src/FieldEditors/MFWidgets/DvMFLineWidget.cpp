#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

DvMFLineWidget::DvMFLineWidget(SoType handledType, NumberAt readNumber, const char* typeName,
                               int valueKind, const QString& objectName)
    : DvMFTextRows(typeName, valueKind, objectName), m_readNumber(readNumber)
{
    m_handledType = handledType;
}

QByteArray DvMFLineWidget::rowValue(int row) const
{
    return isRow(row) ? m_readNumber(*field(), row) : QByteArray();
}

void DvMFLineWidget::applyCell(int row, int, const QString& text)
{
    writeText(row, text);
}
