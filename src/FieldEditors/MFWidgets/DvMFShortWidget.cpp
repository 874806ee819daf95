#include "FieldEditors/MFWidgets/DvMFShortWidget.h"

#include <Inventor/fields/SoMFShort.h>

DvMFShortWidget::DvMFShortWidget()
    : DvMFLineWidget(SoMFShort::getClassTypeId(), numberAt<SoMFShort>, "MFShort",
                     DvMFieldTableItemDelegate::ShortKind, QStringLiteral("DvMFShortWidget"))
{}
