#pragma once

#include "FieldEditors/DvSF4fBox.h"
#include "FieldEditors/DvSFNumbersWidget.h"
#include "FieldEditors/DvValueViews.h"

/** Edits an SoSFPlane: four lines, the normal's x, y and z, and the distance. */
class DvSFPlaneWidget final : public DvSFNumbersWidget<DvSF4fBox, DvPlaneView>
{
    Q_OBJECT

public:
    DvSFPlaneWidget();
};
