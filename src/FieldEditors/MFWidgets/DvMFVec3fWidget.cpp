#include "FieldEditors/MFWidgets/DvMFVec3fWidget.h"

DvMFVec3fWidget::DvMFVec3fWidget(const char* typeName, const QString& objectName)
    : DvMFNumbersWidget({typeName, {"x", "y", "z"}, DvMFieldTableItemDelegate::FloatKind},
                        objectName)
{}
