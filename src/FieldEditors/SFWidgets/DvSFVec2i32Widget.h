#pragma once

#include "FieldEditors/DvSF2iSpinBox.h"
#include "FieldEditors/DvSFNumbersWidget.h"
#include "FieldEditors/DvValueViews.h"

/** Edits an SoSFVec2i32: two spin boxes. */
class DvSFVec2i32Widget final : public DvSFNumbersWidget<DvSF2iSpinBox, DvVec2i32View>
{
    Q_OBJECT

public:
    DvSFVec2i32Widget();
};
