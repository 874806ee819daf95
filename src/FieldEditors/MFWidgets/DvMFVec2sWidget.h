#pragma once

#include "FieldEditors/DvMFNumbersWidget.h"
#include "FieldEditors/DvRowViews.h"

/** Edits an SoMFVec2s. */
class DvMFVec2sWidget final : public DvMFNumbersWidget<DvVec2sRowView>
{
    Q_OBJECT

public:
    DvMFVec2sWidget();
};
