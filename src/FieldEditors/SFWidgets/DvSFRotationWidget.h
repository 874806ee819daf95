#pragma once

#include "FieldEditors/DvSF4fBox.h"
#include "FieldEditors/DvSFNumbersWidget.h"
#include "FieldEditors/DvValueViews.h"

/** Edits an SoSFRotation: four lines, the axis's x, y and z, and the angle in radians. */
class DvSFRotationWidget final : public DvSFNumbersWidget<DvSF4fBox, DvAxisAngleView>
{
    Q_OBJECT

public:
    DvSFRotationWidget();
};
