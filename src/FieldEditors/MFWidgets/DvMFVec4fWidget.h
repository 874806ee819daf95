#pragma once

#include "FieldEditors/DvMFNumbersWidget.h"
#include "FieldEditors/DvRowViews.h"

/** Edits an SoMFVec4f. */
class DvMFVec4fWidget final : public DvMFNumbersWidget<DvVec4fRowView>
{
    Q_OBJECT

public:
    DvMFVec4fWidget();
};
