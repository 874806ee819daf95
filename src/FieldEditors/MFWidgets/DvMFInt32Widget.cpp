#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"

#include <Inventor/fields/SoMFInt32.h>

DvMFInt32Widget::DvMFInt32Widget()
    : DvMFLineWidget(SoMFInt32::getClassTypeId(), numberAt<SoMFInt32>, "MFInt32",
                     DvMFieldTableItemDelegate::Int32Kind, QStringLiteral("DvMFInt32Widget"))
{}
