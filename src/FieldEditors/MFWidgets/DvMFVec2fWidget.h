#pragma once

#include "FieldEditors/DvMFNumbersWidget.h"
#include "FieldEditors/DvRowViews.h"

/** Edits an SoMFVec2f. */
class DvMFVec2fWidget final : public DvMFNumbersWidget<DvVec2fRowView>
{
    Q_OBJECT

public:
    DvMFVec2fWidget();
};
