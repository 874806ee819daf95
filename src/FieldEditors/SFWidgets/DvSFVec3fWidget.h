#pragma once

#include "FieldEditors/DvSFLinesWidget.h"
#include "FieldEditors/DvSFNumbersWidget.h"
#include "FieldEditors/DvValueViews.h"

/** Edits an SoSFVec3f: three lines, x, y and z. */
class DvSFVec3fWidget final : public DvSFNumbersWidget<DvSFLinesWidget, DvVec3fView>
{
    Q_OBJECT

public:
    DvSFVec3fWidget();
};
