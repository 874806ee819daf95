#include "FieldEditors/MFWidgets/DvMFUInt32Widget.h"

#include <Inventor/fields/SoMFUInt32.h>

DvMFUInt32Widget::DvMFUInt32Widget()
    : DvMFLineWidget(SoMFUInt32::getClassTypeId(), numberAt<SoMFUInt32>, "MFUInt32",
                     DvMFieldTableItemDelegate::UInt32Kind, QStringLiteral("DvMFUInt32Widget"))
{}
