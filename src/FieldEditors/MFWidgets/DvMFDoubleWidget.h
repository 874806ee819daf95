#pragma once

#include "FieldEditors/MFWidgets/DvMFLineWidget.h"

/** Edits an SoMFDouble. */
class DvMFDoubleWidget final : public DvMFLineWidget
{
    Q_OBJECT

public:
    DvMFDoubleWidget();
};
