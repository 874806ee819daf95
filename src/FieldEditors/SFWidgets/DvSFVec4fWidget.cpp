#include "FieldEditors/SFWidgets/DvSFVec4fWidget.h"

DvSFVec4fWidget::DvSFVec4fWidget()
    : DvSFNumbersWidget(std::vector<const char*>{"<p>x</p>", "<p>y</p>", "<p>z</p>", "<p>w</p>"},
                        QStringLiteral("DvSFVec4fWidget"))
{}
