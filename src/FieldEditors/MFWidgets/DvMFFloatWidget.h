#pragma once

#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

/** Edits an SoMFFloat. */
class DvMFFloatWidget final : public DvMFLineWidget
{
    Q_OBJECT

public:
    DvMFFloatWidget();

    /** Also chooses the range of the cells' sliders, by the field's node. */
    bool accept(SoField* field) const override;
};
