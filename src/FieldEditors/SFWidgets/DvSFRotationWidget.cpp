#include "FieldEditors/SFWidgets/DvSFRotationWidget.h"

DvSFRotationWidget::DvSFRotationWidget()
    : DvSFNumbersWidget(
          std::vector<const char*>{"<p>x</p>", "<p>y</p>", "<p>z</p>", "<p>radians</p>"},
          QStringLiteral("DvSFRotationWidget"))
{}
