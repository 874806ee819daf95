#pragma once

#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

/** Edits an SoMFShort. */
class DvMFShortWidget final : public DvMFLineWidget
{
    Q_OBJECT

public:
    DvMFShortWidget();
};
