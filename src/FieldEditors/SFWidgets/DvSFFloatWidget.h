#pragma once

#include "FieldEditors/DvNumbers.h"
#include "FieldEditors/DvSFSliderWidget.h"

/** Edits an SoSFFloat: a slider. */
class DvSFFloatWidget final : public DvSFSliderWidget<DvFloatNumber>
{
    Q_OBJECT

public:
    DvSFFloatWidget();
};
