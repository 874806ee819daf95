#pragma once

#include "FieldEditors/DvSFNumbersWidget.h"
#include "FieldEditors/DvValueViews.h"
#include "FieldEditors/SFWidgets/DvPopupWidget.h"

/** Edits an SoSFMatrix: its text, and a pop-up of sixteen numbers, row by row. */
class DvSFMatrixWidget final : public DvSFNumbersWidget<DvPopupWidget, DvMatrixView>
{
    Q_OBJECT

public:
    DvSFMatrixWidget();
};
