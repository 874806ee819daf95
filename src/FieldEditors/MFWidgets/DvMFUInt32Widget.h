#pragma once

#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

/** Edits an SoMFUInt32. */
class DvMFUInt32Widget final : public DvMFLineWidget
{
    Q_OBJECT

public:
    DvMFUInt32Widget();
};
