#pragma once

#include "FieldEditors/DvSFLinesWidget.h"
#include "FieldEditors/DvSFNumbersWidget.h"
#include "FieldEditors/DvValueViews.h"

/** Edits an SoSFVec2f: two lines, x and y. */
class DvSFVec2fWidget final : public DvSFNumbersWidget<DvSFLinesWidget, DvVec2fView>
{
    Q_OBJECT

public:
    DvSFVec2fWidget();
};
