#include "FieldEditors/MFWidgets/DvMFUShortWidget.h"

#include <Inventor/fields/SoMFUShort.h>

DvMFUShortWidget::DvMFUShortWidget()
    : DvMFLineWidget(SoMFUShort::getClassTypeId(), numberAt<SoMFUShort>, "MFUShort",
                     DvMFieldTableItemDelegate::UShortKind, QStringLiteral("DvMFUShortWidget"))
{}
