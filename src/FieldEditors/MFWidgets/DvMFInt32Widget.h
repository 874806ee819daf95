#pragma once

#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

/** Edits an SoMFInt32. */
class DvMFInt32Widget final : public DvMFLineWidget
{
    Q_OBJECT

public:
    DvMFInt32Widget();
};
