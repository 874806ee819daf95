#include "FieldEditors/SFWidgets/DvSFVec3fWidget.h"

namespace {

const DvLinesForm s_form = {
    nullptr,           "SFVec3fLayout",   "SFVec3fLabel",   "SFVec3fLine",
    "SF3fBoxVSpacing", "SF3fBoxHSpacing", "SF3fBoxHMargin", {"<p>x</p>", "<p>y</p>", "<p>z</p>"}};

}

DvSFVec3fWidget::DvSFVec3fWidget() : DvSFNumbersWidget(QStringLiteral("DvSFVec3fWidget"), s_form) {}
