#pragma once

#include "FieldEditors/DvSlider.h"

class DvRealValidator;

/** A slider for single or double precision; its positions are hundredths of the range. */
class DvRealSlider final : public DvSlider
{
    Q_OBJECT

public:
    DvRealSlider(int kind, int cellMode, DvSliderOwner& owner, QWidget* parent, int cellRow,
                 int cellColumn);

    /**
     * A bounded range is strict; any other grows to take in the values that are entered or shown.
     * Ends that are not finite numbers leave the range as it is.
     */
    void setRange(double minimum, double maximum, bool bounded);
    void setValue(double value);
    double value() const { return m_value; }
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    bool isBounded() const { return m_bounded; }
    QString valueText() const override;
    void setCellRange(double minimum, double maximum, bool bounded) override;

protected:
    void updateText() override;
    void updateValueFromText() override;
    void updateValueFromPosition(int position) override;
    void storeOldValue() override;

private:
    QString format(double value) const;
    double parse(const QString& text, bool* parsed) const;
    int positionOf(double value) const;
    /** A power of two with which the largest ranges too have a length, and percentages of it. */
    double scale() const;
    void takeIn(double value);
    double typeLimit() const;
    double toType(double value) const;

    double m_minimum = 0.0;
    double m_maximum = 0.0;
    double m_value = 0.0;
    bool m_bounded = false;
    const bool m_isFloat;
    DvRealValidator* m_validator = nullptr;
};
