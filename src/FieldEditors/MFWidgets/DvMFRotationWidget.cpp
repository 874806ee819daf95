#include "FieldEditors/MFWidgets/DvMFRotationWidget.h"

DvMFRotationWidget::DvMFRotationWidget()
    : DvMFNumbersWidget(
          {"MFRotation", {"x", "y", "z", "radians"}, DvMFieldTableItemDelegate::FloatKind},
          QStringLiteral("DvMFRotationWidget"))
{}
