#include "FieldEditors/SFWidgets/DvSFVec2i32Widget.h"

#include <limits>

DvSFVec2i32Widget::DvSFVec2i32Widget()
    : DvSFNumbersWidget(std::numeric_limits<int>::min(), std::numeric_limits<int>::max(),
                        QStringLiteral("DvSFVec2i32Widget"))
{}
