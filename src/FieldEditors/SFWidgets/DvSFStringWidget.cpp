#include "FieldEditors/SFWidgets/DvSFStringWidget.h"

DvSFStringWidget::DvSFStringWidget() : DvSFTextWidget(QStringLiteral("DvSFStringWidget")) {}
