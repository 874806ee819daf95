#pragma once

#include "FieldEditors/DvNumericRanges.h"
#include "FieldEditors/DvSFieldWidget.h"

#include <QHBoxLayout>

/**
 * The family of the single numbers, each edited with a slider. `Number` says which:
 *
 *   using Field, Slider;               the field class and its slider
 *   static constexpr int kind;         the slider's kind
 *   static range(const SoField&);      the range to start with on a field
 *   static write(Field&, const Slider&)  the slider's value into the field
 */
template <class Number>
class DvSFSliderWidget : public DvSFieldWidget
{
public:
    using DvSFieldWidget::applyChanges;
    using Slider = typename Number::Slider;

    explicit DvSFSliderWidget(const QString& objectName) : DvSFieldWidget(Number::kind, objectName)
    {
        m_handledType = Number::Field::getClassTypeId();
    }

    bool hasPendingEdit() const override { return slider() && slider()->hasPendingEdit(); }

    void refresh() override
    {
        const auto* const field = fieldAs<typename Number::Field>();
        Slider* const slider = numberSlider();
        if (field && slider)
            showValue(*slider, field->getValue());
        DvSFieldWidget::refresh();
    }

    void applyChanges() override
    {
        auto* const field = fieldAs<typename Number::Field>();
        Slider* const slider = numberSlider();
        if (!field || !slider)
            return;
        slider->takePendingEdit();
        Number::write(*field, *slider);
        // Kept on purpose: of the steps of a drag only the first has the text of before, which its
        // command empties.
        pushSetValue(slider->oldValueText());
    }

protected:
    void buildEditor(QHBoxLayout& editLayout) override
    {
        if (slider())
            editLayout.addWidget(slider());
    }

    void fieldReplaced() override
    {
        const DvNumericRanges::Range& range = Number::range(*field());
        setRange(range.minimum, range.maximum, range.bounded);
    }

    void fieldReleased() override
    {
        if (slider())
            slider()->cancelDrag();
    }

    void clearPendingEdit() override
    {
        if (slider())
            slider()->revertPendingEdit();
    }

private:
    using Value = decltype(std::declval<Slider>().value());

    Slider* numberSlider() const { return static_cast<Slider*>(slider()); }

    void setRange(double minimum, double maximum, bool bounded)
    {
        if (Slider* const slider = numberSlider())
            slider->setRange(static_cast<Value>(minimum), static_cast<Value>(maximum), bounded);
    }

    /** Kept on purpose: a value outside of the range stretches it, and a strict one stays strict.
     */
    static void showValue(Slider& slider, Value value)
    {
        if (value > slider.maximum())
            slider.setRange(slider.minimum(), value, slider.isBounded());
        else if (value < slider.minimum())
            slider.setRange(value, slider.maximum(), slider.isBounded());
        slider.setValue(value);
    }
};
