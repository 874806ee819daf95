#include "FieldEditors/SFWidgets/DvSFVec2sWidget.h"

#include <limits>

DvSFVec2sWidget::DvSFVec2sWidget()
    : DvSFNumbersWidget(std::numeric_limits<short>::min(), std::numeric_limits<short>::max(),
                        QStringLiteral("DvSFVec2sWidget"))
{}
