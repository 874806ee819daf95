#pragma once

#include "FieldEditors/DvNumbers.h"
#include "FieldEditors/DvSFSliderWidget.h"

/** Edits an SoSFInt32: a slider. */
class DvSFInt32Widget final : public DvSFSliderWidget<DvInt32Number>
{
    Q_OBJECT

public:
    DvSFInt32Widget();
};
