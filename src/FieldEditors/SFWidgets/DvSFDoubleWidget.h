#pragma once

#include "FieldEditors/DvNumbers.h"
#include "FieldEditors/DvSFSliderWidget.h"

/** Edits an SoSFDouble: a slider. */
class DvSFDoubleWidget final : public DvSFSliderWidget<DvDoubleNumber>
{
    Q_OBJECT

public:
    DvSFDoubleWidget();
};
