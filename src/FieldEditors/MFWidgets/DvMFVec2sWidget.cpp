#include "FieldEditors/MFWidgets/DvMFVec2sWidget.h"

DvMFVec2sWidget::DvMFVec2sWidget()
    : DvMFNumbersWidget({"MFVec2s", {"x", "y"}, DvMFieldTableItemDelegate::TextKind},
                        QStringLiteral("DvMFVec2sWidget"))
{}
