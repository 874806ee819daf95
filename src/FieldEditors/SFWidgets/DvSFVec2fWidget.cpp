#include "FieldEditors/SFWidgets/DvSFVec2fWidget.h"

namespace {

const DvLinesForm s_form = {"SFVec2fBox",    "SFVec2fLayout",         "SFVec2fLabel",
                            "SFVec2fLine",   "SF2BoxVSpacing",        "SF2BoxHSpacing",
                            "SF2BoxHMargin", {"<p>x</p>", "<p>y</p>"}};

}

DvSFVec2fWidget::DvSFVec2fWidget() : DvSFNumbersWidget(QStringLiteral("DvSFVec2fWidget"), s_form) {}
