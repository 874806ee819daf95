#include "FieldEditors/MFWidgets/DvMFDefaultFieldWidget.h"

#include <Inventor/fields/SoMFEngine.h>
#include <Inventor/fields/SoMFNode.h>
#include <Inventor/fields/SoMFPath.h>

namespace {

/** Whether reading a value's own text makes another value: a copy of the object. */
bool holdsObjects(const SoMField& field)
{
    const SoType type = field.getTypeId();
    return type.isDerivedFrom(SoMFNode::getClassTypeId()) ||
           type.isDerivedFrom(SoMFPath::getClassTypeId()) ||
           type.isDerivedFrom(SoMFEngine::getClassTypeId());
}

} // namespace

DvMFDefaultFieldWidget::DvMFDefaultFieldWidget()
    : DvMFTextRows("MField", DvMFieldTableItemDelegate::TextKind,
                   QStringLiteral("DvMFDefaultFieldWidget"))
{
    m_handledType = SoMField::getClassTypeId();
}

void DvMFDefaultFieldWidget::applyCell(int row, int, const QString& text)
{
    if (!isRow(row) || (holdsObjects(*field()) && text == cellText(row, 0)))
        return;
    writeText(row, text);
    pushSetValue(row);
}
