#include "FieldEditors/SFWidgets/DvSFPlaneWidget.h"

DvSFPlaneWidget::DvSFPlaneWidget()
    : DvSFNumbersWidget(
          std::vector<const char*>{"<p>x</p>", "<p>y</p>", "<p>z</p>", "<p>distance</p>"},
          QStringLiteral("DvSFPlaneWidget"))
{}
