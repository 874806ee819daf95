#pragma once

#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

/** Edits an SoMFUShort. */
class DvMFUShortWidget final : public DvMFLineWidget
{
    Q_OBJECT

public:
    DvMFUShortWidget();
};
