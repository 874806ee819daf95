#include "FieldEditors/SFWidgets/DvSFShortWidget.h"

DvSFShortWidget::DvSFShortWidget() : DvSFSliderWidget(QStringLiteral("DvSFShortWidget")) {}
