#include "FieldEditors/MFWidgets/DvMFFloatWidget.h"

#include "FieldEditors/DvMFieldTable.h"
#include "FieldEditors/DvNumericRanges.h"

#include <Inventor/fields/SoMFFloat.h>

DvMFFloatWidget::DvMFFloatWidget()
    : DvMFLineWidget(SoMFFloat::getClassTypeId(), numberAt<SoMFFloat>, "MFFloat",
                     DvMFieldTableItemDelegate::FloatKind, QStringLiteral("DvMFFloatWidget"))
{}

bool DvMFFloatWidget::accept(SoField* field) const
{
    if (!DvMFLineWidget::accept(field))
        return false;
    if (!hasTable())
        return true;
    const DvNumericRanges::Range& range = DvNumericRanges::forReal(*field, "floatField");
    table().delegate().setRealRange(range.minimum, range.maximum, range.bounded);
    return true;
}
