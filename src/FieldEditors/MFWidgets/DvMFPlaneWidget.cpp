#include "FieldEditors/MFWidgets/DvMFPlaneWidget.h"

DvMFPlaneWidget::DvMFPlaneWidget()
    : DvMFNumbersWidget(
          {"MFPlane", {"x", "y", "z", "distance"}, DvMFieldTableItemDelegate::FloatKind},
          QStringLiteral("DvMFPlaneWidget"))
{}
