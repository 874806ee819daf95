#include "FieldEditors/MFWidgets/DvMFVec2fWidget.h"

DvMFVec2fWidget::DvMFVec2fWidget()
    : DvMFNumbersWidget({"MFVec2f", {"x", "y"}, DvMFieldTableItemDelegate::FloatKind},
                        QStringLiteral("DvMFVec2fWidget"))
{}
