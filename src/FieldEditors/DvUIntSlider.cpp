#include "FieldEditors/DvUIntSlider.h"

#include "FieldEditors/DvIntegerText.h"
#include "FieldEditors/DvLineEdit.h"

#include <algorithm>
#include <limits>

namespace {

constexpr qint64 s_bias = 0x80000000LL;

int toPosition(unsigned value)
{
    return static_cast<int>(static_cast<qint64>(value) - s_bias);
}

unsigned toValue(int position)
{
    return static_cast<unsigned>(position + s_bias);
}

} // namespace

DvUIntSlider::DvUIntSlider(int kind, int cellMode, DvSliderOwner& owner, QWidget* parent,
                           int cellRow, int cellColumn)
    : DvSlider(cellMode, owner, parent, cellRow, cellColumn),
      m_typeMaximum(kind == UShortKind ? std::numeric_limits<unsigned short>::max()
                                       : std::numeric_limits<unsigned>::max())
{
    setSliderRange(toPosition(0), toPosition(0));
    takeValue(0);
    updateText();
}

void DvUIntSlider::setRange(unsigned minimum, unsigned maximum, bool bounded)
{
    if (minimum > maximum)
        return;
    m_bounded = bounded;
    m_minimum = std::min(minimum, m_typeMaximum);
    m_maximum = std::min(maximum, m_typeMaximum);
    setSliderRange(toPosition(m_minimum), toPosition(m_maximum));
    m_position = toPosition(m_value);
    moveToPosition();
}

void DvUIntSlider::setCellRange(double minimum, double maximum, bool bounded)
{
    setRange(static_cast<unsigned>(minimum), static_cast<unsigned>(maximum), bounded);
}

void DvUIntSlider::setValue(unsigned value)
{
    const unsigned clamped = std::clamp(value, m_typeMinimum, m_typeMaximum);
    takeIn(clamped);
    takeValue(clamped);
    updateText();
    moveToPosition();
}

void DvUIntSlider::takeIn(unsigned value)
{
    if (m_bounded || (value >= m_minimum && value <= m_maximum))
        return;
    m_minimum = std::min(m_minimum, value);
    m_maximum = std::max(m_maximum, value);
    setSliderRange(toPosition(m_minimum), toPosition(m_maximum));
}

void DvUIntSlider::takeValue(unsigned value)
{
    m_value = value;
    m_position = toPosition(value);
}

void DvUIntSlider::onTextEntered(const QString& text)
{
    if (!m_detectBase)
        return;
    m_base = DvIntegerText::baseOf(text);
    m_detectBase = false;
    if (m_base != 10)
        line().setText(DvIntegerText::withoutPrefix(text, m_base));
    updateValueFromText();
    moveToPosition();
}

void DvUIntSlider::updateValueFromText()
{
    const std::optional<qint64> entered = DvIntegerText::parse(line().text(), m_base);
    // Kept on purpose: a text that is no unsigned number changes nothing here, while the signed
    // slider takes one that is no number for 0.
    if (!entered || *entered < 0)
        return;
    auto value = static_cast<unsigned>(std::clamp<qint64>(*entered, m_typeMinimum, m_typeMaximum));
    if (m_bounded)
        value = std::clamp(value, m_minimum, m_maximum);
    takeIn(value);
    takeValue(value);
}

void DvUIntSlider::updateValueFromPosition(int position)
{
    takeValue(toValue(position));
}

QString DvUIntSlider::valueText() const
{
    return QString::number(m_value);
}

void DvUIntSlider::updateText()
{
    showText(DvIntegerText::format(static_cast<qint64>(m_value), m_base));
}

void DvUIntSlider::storeOldValue()
{
    m_oldValueText = valueText().toLatin1().constData();
}
