#pragma once

#include "FieldEditors/DvSlider.h"

/**
 * A slider for 32-bit and 16-bit unsigned integers. Its positions are the values with half the
 * range taken off, so that all of them fit a signed slider. Kept on purpose for the 16-bit kind as
 * well.
 */
class DvUIntSlider final : public DvSlider
{
    Q_OBJECT

public:
    DvUIntSlider(int kind, int cellMode, DvSliderOwner& owner, QWidget* parent, int cellRow,
                 int cellColumn);

    /** A bounded range is strict; any other grows to take in the values entered or shown. */
    void setRange(unsigned minimum, unsigned maximum, bool bounded);
    /** A value beyond the type's largest is the largest. */
    void setValue(unsigned value);
    unsigned value() const { return m_value; }
    unsigned minimum() const { return m_minimum; }
    unsigned maximum() const { return m_maximum; }
    bool isBounded() const { return m_bounded; }
    /** 10, or what the first text entered has announced: 8 or 16. For showing only. */
    int base() const { return m_base; }
    QString valueText() const override;
    void setCellRange(double minimum, double maximum, bool bounded) override;

    /** Reads the base off the first text that is entered, and takes the text as the value. */
    void onTextEntered(const QString& text) override;

protected:
    void updateText() override;
    void updateValueFromText() override;
    void updateValueFromPosition(int position) override;
    void storeOldValue() override;

private:
    void takeIn(unsigned value);
    void takeValue(unsigned value);

    unsigned m_minimum = 0;
    unsigned m_maximum = 0;
    unsigned m_value = 0;
    int m_base = 10;
    const unsigned m_typeMinimum = 0;
    const unsigned m_typeMaximum;
    bool m_bounded = false;
    bool m_detectBase = true;
};
