#pragma once

#include "FieldEditors/DvSFTextWidget.h"

#include <Inventor/fields/SoSFString.h>

/** Edits an SoSFString: one line. */
class DvSFStringWidget final : public DvSFTextWidget<SoSFString>
{
    Q_OBJECT

public:
    DvSFStringWidget();
};
