#include "FieldEditors/DvIntSlider.h"

#include "FieldEditors/DvIntValidator.h"

namespace {

using Short = std::numeric_limits<short>;
using Int = std::numeric_limits<int>;

} // namespace

DvIntSlider::DvIntSlider(int kind, int cellMode, DvSliderOwner& owner, QWidget* parent, int cellRow,
                         int cellColumn)
    : DvIntegerSlider(kind == ShortKind ? Short::min() : Int::min(),
                      kind == ShortKind ? Short::max() : Int::max(), cellMode, owner, parent,
                      cellRow, cellColumn),
      m_validator(new DvIntValidator(this))
{
    if (kind == ShortKind)
        m_validator->setRange(Short::min(), Short::max());
}

void DvIntSlider::baseFound()
{
    if (base() == 10)
        line().setValidator(m_validator);
}

void DvIntSlider::updateValueFromText()
{
    takeEntered(DvIntegerText::parse(line().text(), base()).value_or(0));
}
