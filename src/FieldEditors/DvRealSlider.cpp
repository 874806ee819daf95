#include "FieldEditors/DvRealSlider.h"

#include "FieldEditors/DvLineEdit.h"
#include "FieldEditors/DvRealValidator.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int s_lastPosition = 100;
constexpr double s_largestFloat = 3.4028234663852886e+38;
constexpr double s_largestDouble = 1.7976931348623157e+308;
constexpr double s_shrink = 1.0 / 1024;

} // namespace

DvRealSlider::DvRealSlider(int kind, int cellMode, DvSliderOwner& owner, QWidget* parent,
                           int cellRow, int cellColumn)
    : DvSlider(cellMode, owner, parent, cellRow, cellColumn), m_isFloat(kind == FloatKind)
{
    m_validator = new DvRealValidator(-typeLimit(), typeLimit(), m_isFloat ? 6 : 15, this);
    m_validator->setClamped(true);
    line().setValidator(m_validator);
    setSliderRange(0, s_lastPosition);
    updateText();
}

double DvRealSlider::typeLimit() const
{
    return m_isFloat ? s_largestFloat : s_largestDouble;
}

void DvRealSlider::setRange(double minimum, double maximum, bool bounded)
{
    if (!std::isfinite(minimum) || !std::isfinite(maximum) || minimum > maximum)
        return;
    m_bounded = bounded;
    m_minimum = minimum;
    m_maximum = maximum;
    // The validator outlives the field that had a strict range.
    m_validator->setBottom(bounded ? minimum : -typeLimit());
    m_validator->setTop(bounded ? maximum : typeLimit());
    setSliderRange(0, s_lastPosition);
    m_position = positionOf(m_value);
    moveToPosition();
}

void DvRealSlider::setCellRange(double minimum, double maximum, bool bounded)
{
    setRange(minimum, maximum, bounded);
}

void DvRealSlider::setValue(double value)
{
    takeIn(value);
    m_value = value;
    m_position = positionOf(value);
    updateText();
    moveToPosition();
}

void DvRealSlider::takeIn(double value)
{
    if (m_bounded || !std::isfinite(value))
        return;
    m_minimum = std::min(m_minimum, value);
    m_maximum = std::max(m_maximum, value);
}

double DvRealSlider::scale() const
{
    const double largest = std::max(std::abs(m_minimum), std::abs(m_maximum));
    return largest > s_largestDouble * s_shrink ? s_shrink : 1.0;
}

int DvRealSlider::positionOf(double value) const
{
    if (!(m_maximum > m_minimum) || std::isnan(value))
        return 0;
    const double bottom = m_minimum * scale();
    const double above = std::clamp(value, m_minimum, m_maximum) * scale() - bottom;
    const double exact = above * s_lastPosition / (m_maximum * scale() - bottom);
    return static_cast<int>(std::floor(exact + 0.5));
}

void DvRealSlider::updateValueFromPosition(int position)
{
    m_position = position;
    const double bottom = m_minimum * scale();
    const double length = m_maximum * scale() - bottom;
    const double value = (length * position / s_lastPosition + bottom) / scale();
    m_value = toType(std::clamp(value, m_minimum, m_maximum));
}

double DvRealSlider::toType(double value) const
{
    return m_isFloat ? static_cast<double>(static_cast<float>(value)) : value;
}

void DvRealSlider::updateValueFromText()
{
    bool parsed = false;
    double value = parse(line().text(), &parsed);
    if (!parsed)
        value = 0.0;
    if (m_bounded)
        value = std::clamp(value, m_minimum, m_maximum);
    takeIn(value);
    m_value = value;
    m_position = positionOf(value);
}

double DvRealSlider::parse(const QString& text, bool* parsed) const
{
    const double value = text.toDouble(parsed);
    // A number too large for the type is the largest of the type; Qt calls it infinite and a
    // failure.
    if (std::isnan(value))
        return value;
    if (std::isinf(value))
        *parsed = true;
    return toType(std::clamp(value, -typeLimit(), typeLimit()));
}

QString DvRealSlider::format(double value) const
{
    return m_isFloat ? QString::number(value, 'f', 6) : QString::number(value, 'g', 15);
}

QString DvRealSlider::valueText() const
{
    // Qt writes it without its sign.
    if (m_value == 0.0 && std::signbit(m_value))
        return QStringLiteral("-0");
    QString shown = format(m_value);
    bool parsed = false;
    const double read = shown.toDouble(&parsed);
    if (parsed && toType(read) == m_value)
        return shown;
    return QString::number(m_value, 'g',
                           m_isFloat ? std::numeric_limits<float>::max_digits10
                                     : std::numeric_limits<double>::max_digits10);
}

void DvRealSlider::updateText()
{
    showText(format(m_value));
}

void DvRealSlider::storeOldValue()
{
    m_oldValueText = valueText().toLatin1().constData();
}
