#pragma once

#include "FieldEditors/DvSF2iSpinBox.h"
#include "FieldEditors/DvSFNumbersWidget.h"
#include "FieldEditors/DvValueViews.h"

/** Edits an SoSFVec2s: two spin boxes. */
class DvSFVec2sWidget final : public DvSFNumbersWidget<DvSF2iSpinBox, DvVec2sView>
{
    Q_OBJECT

public:
    DvSFVec2sWidget();
};
