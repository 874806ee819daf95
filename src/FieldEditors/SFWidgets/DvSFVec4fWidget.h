#pragma once

#include "FieldEditors/DvSF4fBox.h"
#include "FieldEditors/DvSFNumbersWidget.h"
#include "FieldEditors/DvValueViews.h"

/** Edits an SoSFVec4f: four lines, x, y, z and w. */
class DvSFVec4fWidget final : public DvSFNumbersWidget<DvSF4fBox, DvVec4fView>
{
    Q_OBJECT

public:
    DvSFVec4fWidget();
};
