#pragma once

#include "FieldEditors/DvMFNumbersWidget.h"
#include "FieldEditors/DvRowViews.h"

/** Edits an SoMFVec2i32. */
class DvMFVec2i32Widget final : public DvMFNumbersWidget<DvVec2i32RowView>
{
    Q_OBJECT

public:
    DvMFVec2i32Widget();
};
