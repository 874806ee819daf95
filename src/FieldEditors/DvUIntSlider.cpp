#include "FieldEditors/DvUIntSlider.h"

DvUIntSlider::DvUIntSlider(int kind, int cellMode, DvSliderOwner& owner, QWidget* parent,
                           int cellRow, int cellColumn)
    : DvIntegerSlider(0,
                      kind == UShortKind ? std::numeric_limits<unsigned short>::max()
                                         : std::numeric_limits<unsigned>::max(),
                      cellMode, owner, parent, cellRow, cellColumn)
{}

void DvUIntSlider::updateValueFromText()
{
    const std::optional<qint64> entered = DvIntegerText::parse(line().text(), base());
    // Kept on purpose: a text that is no unsigned number changes nothing here, while the signed
    // slider takes one that is no number for 0.
    if (entered && *entered >= 0)
        takeEntered(*entered);
}
