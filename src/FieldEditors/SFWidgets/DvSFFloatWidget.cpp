#include "FieldEditors/SFWidgets/DvSFFloatWidget.h"

DvSFFloatWidget::DvSFFloatWidget() : DvSFSliderWidget(QStringLiteral("DvSFFloatWidget")) {}
