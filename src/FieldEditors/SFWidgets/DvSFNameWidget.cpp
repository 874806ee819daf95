#include "FieldEditors/SFWidgets/DvSFNameWidget.h"

DvSFNameWidget::DvSFNameWidget() : DvSFTextWidget(QStringLiteral("DvSFNameWidget")) {}
