#include "FieldEditors/SFWidgets/DvSFDoubleWidget.h"

DvSFDoubleWidget::DvSFDoubleWidget() : DvSFSliderWidget(QStringLiteral("DvSFDoubleWidget")) {}
