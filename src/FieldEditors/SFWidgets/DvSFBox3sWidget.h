#pragma once

#include "FieldEditors/DvSFNumbersWidget.h"
#include "FieldEditors/DvValueViews.h"
#include "FieldEditors/SFWidgets/DvPopupWidget.h"

/** Edits an SoSFBox3s: its text, and a pop-up of six integers, minimum then maximum. */
class DvSFBox3sWidget final : public DvSFNumbersWidget<DvPopupWidget, DvBox3sView>
{
    Q_OBJECT

public:
    DvSFBox3sWidget();

protected:
    QValidator* newValidator(QObject* parent) const override;
};
