#include "FieldEditors/MFWidgets/DvMFVec2i32Widget.h"

DvMFVec2i32Widget::DvMFVec2i32Widget()
    : DvMFNumbersWidget({"MFVec2i32", {"x", "y"}, DvMFieldTableItemDelegate::Int32Kind},
                        QStringLiteral("DvMFVec2i32Widget"))
{}
