#pragma once

#include "FieldEditors/DvNumbers.h"
#include "FieldEditors/DvSFSliderWidget.h"

/** Edits an SoSFShort: a slider. */
class DvSFShortWidget final : public DvSFSliderWidget<DvShortNumber>
{
    Q_OBJECT

public:
    DvSFShortWidget();
};
