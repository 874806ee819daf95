#pragma once

#include "FieldEditors/DvIntegerSlider.h"

/**
 * A slider for 32-bit and 16-bit unsigned integers. Its positions are the values with half the
 * range taken off, so that all of them fit a signed slider. Kept on purpose for the 16-bit kind as
 * well.
 */
class DvUIntSlider final : public DvIntegerSlider<unsigned>
{
    Q_OBJECT

public:
    DvUIntSlider(int kind, int cellMode, DvSliderOwner& owner, QWidget* parent, int cellRow,
                 int cellColumn);

protected:
    void updateValueFromText() override;
};
