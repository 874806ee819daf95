#pragma once

#include "FieldEditors/DvIntegerText.h"
#include "FieldEditors/DvLineEdit.h"
#include "FieldEditors/DvSlider.h"

#include <algorithm>
#include <limits>

/**
 * What the sliders for signed and unsigned integers have in common: a range, a base for showing,
 * and one slider position for each value, the smallest of 32 bits at the slider's smallest.
 */
template <class Value>
class DvIntegerSlider : public DvSlider
{
public:
    /** A bounded range is strict; any other grows to take in the values entered or shown. */
    void setRange(Value minimum, Value maximum, bool bounded)
    {
        if (minimum > maximum)
            return;
        m_bounded = bounded;
        m_minimum = toType(minimum);
        m_maximum = toType(maximum);
        setSliderRange(toPosition(m_minimum), toPosition(m_maximum));
        m_position = toPosition(m_value);
        moveToPosition();
    }

    /** A value beyond the type's limits is the limit. */
    void setValue(Value value)
    {
        const Value clamped = toType(value);
        takeIn(clamped);
        takeValue(clamped);
        showValue();
        moveToPosition();
    }

    Value value() const { return m_value; }
    Value minimum() const { return m_minimum; }
    Value maximum() const { return m_maximum; }
    bool isBounded() const { return m_bounded; }
    /** 10, or what the first text entered has announced: 8 or 16. For showing only. */
    int base() const { return m_base; }
    QString valueText() const override { return QString::number(m_value); }

    void setCellRange(double minimum, double maximum, bool bounded) override
    {
        setRange(toType(static_cast<qint64>(minimum)), toType(static_cast<qint64>(maximum)),
                 bounded);
    }

    /** Reads the base off the first text that is entered, and takes the text as the value. */
    void onTextEntered(const QString& text) override
    {
        // Kept on purpose: the first text decides for all that come after it.
        if (!m_detectBase)
            return;
        m_detectBase = false;
        m_base = DvIntegerText::baseOf(text);
        if (m_base != 10)
            line().setText(DvIntegerText::withoutPrefix(text, m_base));
        baseFound();
        updateValueFromText();
        moveToPosition();
    }

protected:
    DvIntegerSlider(Value typeMinimum, Value typeMaximum, int cellMode, DvSliderOwner& owner,
                    QWidget* parent, int cellRow, int cellColumn)
        : DvSlider(cellMode, owner, parent, cellRow, cellColumn), m_typeMinimum(typeMinimum),
          m_typeMaximum(typeMaximum)
    {
        setSliderRange(toPosition(0), toPosition(0));
        takeValue(0);
        showValue();
    }

    /** The first text has told the base. */
    virtual void baseFound() {}

    /** Takes an entered number as the value, clamped or widening the range. */
    void takeEntered(qint64 entered)
    {
        Value value = toType(entered);
        if (m_bounded)
            value = std::clamp(value, m_minimum, m_maximum);
        takeIn(value);
        takeValue(value);
    }

    void updateText() override { showValue(); }
    void updateValueFromPosition(int position) override { takeValue(toValue(position)); }
    void storeOldValue() override { m_oldValueText = valueText().toLatin1().constData(); }

private:
    static constexpr qint64 s_bias =
        static_cast<qint64>(std::numeric_limits<Value>::min()) - std::numeric_limits<int>::min();

    static int toPosition(Value value)
    {
        return static_cast<int>(static_cast<qint64>(value) - s_bias);
    }
    static Value toValue(int position) { return static_cast<Value>(position + s_bias); }

    Value toType(qint64 number) const
    {
        return static_cast<Value>(std::clamp<qint64>(number, m_typeMinimum, m_typeMaximum));
    }

    void showValue() { showText(DvIntegerText::format(static_cast<qint64>(m_value), m_base)); }

    void takeIn(Value value)
    {
        if (m_bounded || (value >= m_minimum && value <= m_maximum))
            return;
        m_minimum = std::min(m_minimum, value);
        m_maximum = std::max(m_maximum, value);
        setSliderRange(toPosition(m_minimum), toPosition(m_maximum));
    }

    void takeValue(Value value)
    {
        m_value = value;
        m_position = toPosition(value);
    }

    Value m_minimum = 0;
    Value m_maximum = 0;
    Value m_value = 0;
    int m_base = 10;
    const Value m_typeMinimum;
    const Value m_typeMaximum;
    bool m_bounded = false;
    bool m_detectBase = true;
};
