#pragma once

#include "FieldEditors/DvNumbers.h"
#include "FieldEditors/DvSFSliderWidget.h"

/** Edits an SoSFUShort: a slider. */
class DvSFUShortWidget final : public DvSFSliderWidget<DvUShortNumber>
{
    Q_OBJECT

public:
    DvSFUShortWidget();
};
