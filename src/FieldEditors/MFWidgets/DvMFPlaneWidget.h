#pragma once

#include "FieldEditors/DvMFNumbersWidget.h"
#include "FieldEditors/DvRowViews.h"

/** Edits an SoMFPlane. */
class DvMFPlaneWidget final : public DvMFNumbersWidget<DvPlaneRowView>
{
    Q_OBJECT

public:
    DvMFPlaneWidget();
};
