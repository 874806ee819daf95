#pragma once

#include "FieldEditors/DvMFNumbersWidget.h"
#include "FieldEditors/DvRowViews.h"

/** Edits an SoMFRotation. */
class DvMFRotationWidget final : public DvMFNumbersWidget<DvQuaternionRowView>
{
    Q_OBJECT

public:
    DvMFRotationWidget();
};
