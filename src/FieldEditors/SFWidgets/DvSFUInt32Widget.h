#pragma once

#include "FieldEditors/DvNumbers.h"
#include "FieldEditors/DvSFSliderWidget.h"

/** Edits an SoSFUInt32: a slider. */
class DvSFUInt32Widget final : public DvSFSliderWidget<DvUInt32Number>
{
    Q_OBJECT

public:
    DvSFUInt32Widget();
};
