#pragma once

#include "FieldEditors/DvIntegerSlider.h"

class DvIntValidator;

/** A slider for 32-bit and 16-bit signed integers; its positions are the values. */
class DvIntSlider final : public DvIntegerSlider<int>
{
    Q_OBJECT

public:
    DvIntSlider(int kind, int cellMode, DvSliderOwner& owner, QWidget* parent, int cellRow,
                int cellColumn);

protected:
    /** From here on the line takes integers of base 10 only, where that is the base. */
    void baseFound() override;
    void updateValueFromText() override;

private:
    DvIntValidator* m_validator = nullptr;
};
