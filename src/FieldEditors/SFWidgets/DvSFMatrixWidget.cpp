#include "FieldEditors/SFWidgets/DvSFMatrixWidget.h"

DvSFMatrixWidget::DvSFMatrixWidget() : DvSFNumbersWidget(4, 4, QStringLiteral("DvSFMatrixWidget"))
{}
