#include "FieldEditors/DvIntSlider.h"

#include "FieldEditors/DvIntValidator.h"
#include "FieldEditors/DvIntegerText.h"
#include "FieldEditors/DvLineEdit.h"

#include <algorithm>
#include <limits>

DvIntSlider::DvIntSlider(int kind, int cellMode, DvSliderOwner& owner, QWidget* parent, int cellRow,
                         int cellColumn)
    : DvSlider(cellMode, owner, parent, cellRow, cellColumn), m_validator(new DvIntValidator(this))
{
    if (kind == ShortKind)
        m_validator->setRange(std::numeric_limits<short>::min(), std::numeric_limits<short>::max());
    setSliderRange(0, 0);
    updateText();
}

int DvIntSlider::toType(qint64 value) const
{
    return static_cast<int>(std::clamp<qint64>(value, m_validator->bottom(), m_validator->top()));
}

void DvIntSlider::setRange(int minimum, int maximum, bool bounded)
{
    if (minimum > maximum)
        return;
    m_bounded = bounded;
    m_minimum = toType(minimum);
    m_maximum = toType(maximum);
    setSliderRange(m_minimum, m_maximum);
    m_position = m_value;
    moveToPosition();
}

void DvIntSlider::setCellRange(double minimum, double maximum, bool bounded)
{
    setRange(static_cast<int>(minimum), static_cast<int>(maximum), bounded);
}

void DvIntSlider::setValue(int value)
{
    const int clamped = toType(value);
    takeIn(clamped);
    m_value = clamped;
    m_position = clamped;
    updateText();
    moveToPosition();
}

void DvIntSlider::takeIn(int value)
{
    if (m_bounded || (value >= m_minimum && value <= m_maximum))
        return;
    m_minimum = std::min(m_minimum, value);
    m_maximum = std::max(m_maximum, value);
    setSliderRange(m_minimum, m_maximum);
}

void DvIntSlider::onTextEntered(const QString& text)
{
    if (!m_detectBase)
        return;
    m_base = DvIntegerText::baseOf(text);
    if (m_base == 10)
        line().setValidator(m_validator);
    m_detectBase = false;
    if (m_base != 10)
        line().setText(DvIntegerText::withoutPrefix(text, m_base));
    updateValueFromText();
    moveToPosition();
}

void DvIntSlider::updateValueFromText()
{
    int value = toType(DvIntegerText::parse(line().text(), m_base).value_or(0));
    if (m_bounded)
        value = std::clamp(value, m_minimum, m_maximum);
    takeIn(value);
    m_value = value;
    m_position = value;
}

void DvIntSlider::updateValueFromPosition(int position)
{
    m_position = position;
    m_value = position;
}

QString DvIntSlider::valueText() const
{
    return QString::number(m_value);
}

void DvIntSlider::updateText()
{
    showText(DvIntegerText::format(m_value, m_base));
}

void DvIntSlider::storeOldValue()
{
    m_oldValueText = valueText().toLatin1().constData();
}
