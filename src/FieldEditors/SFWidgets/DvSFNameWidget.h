#pragma once

#include "FieldEditors/DvSFTextWidget.h"

#include <Inventor/fields/SoSFName.h>

/** Edits an SoSFName: one line. */
class DvSFNameWidget final : public DvSFTextWidget<SoSFName>
{
    Q_OBJECT

public:
    DvSFNameWidget();

protected:
    void buildEditor(QHBoxLayout& editLayout) override;
};
