#include "FieldEditors/MFWidgets/DvMFVec4fWidget.h"

DvMFVec4fWidget::DvMFVec4fWidget()
    : DvMFNumbersWidget({"MFVec4f", {"x", "y", "z", "w"}, DvMFieldTableItemDelegate::FloatKind},
                        QStringLiteral("DvMFVec4fWidget"))
{}
