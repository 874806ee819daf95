#include "FieldEditors/SFWidgets/DvSFUShortWidget.h"

DvSFUShortWidget::DvSFUShortWidget() : DvSFSliderWidget(QStringLiteral("DvSFUShortWidget")) {}
