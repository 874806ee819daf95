#pragma once

#include "FieldEditors/DvSlider.h"

class DvIntValidator;

/** A slider for 32-bit and 16-bit signed integers; its positions are the values. */
class DvIntSlider final : public DvSlider
{
    Q_OBJECT

public:
    DvIntSlider(int kind, int cellMode, DvSliderOwner& owner, QWidget* parent, int cellRow,
                int cellColumn);

    /** A bounded range is strict; any other grows to take in the values entered or shown. */
    void setRange(int minimum, int maximum, bool bounded);
    /** A value beyond the type's limits is the limit. */
    void setValue(int value);
    int value() const { return m_value; }
    int minimum() const { return m_minimum; }
    int maximum() const { return m_maximum; }
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
    void takeIn(int value);
    int toType(qint64 value) const;

    int m_minimum = 0;
    int m_maximum = 0;
    int m_value = 0;
    int m_base = 10;
    bool m_bounded = false;
    bool m_detectBase = true;
    DvIntValidator* m_validator = nullptr;
};
