#include "FieldEditors/MFWidgets/DvMFDoubleWidget.h"

#include <Inventor/fields/SoMFDouble.h>

DvMFDoubleWidget::DvMFDoubleWidget()
    : DvMFLineWidget(SoMFDouble::getClassTypeId(), numberAt<SoMFDouble>, "MFDouble",
                     DvMFieldTableItemDelegate::DoubleKind, QStringLiteral("DvMFDoubleWidget"))
{}
