#pragma once

#include "FieldEditors/DvIntSlider.h"
#include "FieldEditors/DvNumericRanges.h"
#include "FieldEditors/DvRealSlider.h"
#include "FieldEditors/DvUIntSlider.h"

#include <Inventor/fields/SoSFDouble.h>
#include <Inventor/fields/SoSFFloat.h>
#include <Inventor/fields/SoSFInt32.h>
#include <Inventor/fields/SoSFShort.h>
#include <Inventor/fields/SoSFUInt32.h>
#include <Inventor/fields/SoSFUShort.h>

/*
 * What the number types differ in, for DvSFSliderWidget: facts only.
 */

struct DvFloatNumber
{
    using Field = SoSFFloat;
    using Slider = DvRealSlider;
    static constexpr int kind = DvSlider::FloatKind;

    static const DvNumericRanges::Range& range(const SoField& field)
    {
        return DvNumericRanges::forReal(field, "floatField");
    }
    static void write(Field& field, const Slider& slider)
    {
        field.setValue(static_cast<float>(slider.value()));
    }
};

struct DvDoubleNumber
{
    using Field = SoSFDouble;
    using Slider = DvRealSlider;
    static constexpr int kind = DvSlider::DoubleKind;

    static const DvNumericRanges::Range& range(const SoField& field)
    {
        return DvNumericRanges::forReal(field, "doubleField");
    }
    static void write(Field& field, const Slider& slider) { field.setValue(slider.value()); }
};

/** The integers write the field through its text, base 10. */
template <class FieldType, class SliderType, int sliderKind>
struct DvIntegerNumber
{
    using Field = FieldType;
    using Slider = SliderType;
    static constexpr int kind = sliderKind;

    static const DvNumericRanges::Range& range(const SoField&)
    {
        return DvNumericRanges::forIntegers();
    }
    static void write(Field& field, const Slider& slider)
    {
        field.set(slider.valueText().toLatin1().constData());
    }
};

using DvInt32Number = DvIntegerNumber<SoSFInt32, DvIntSlider, DvSlider::Int32Kind>;
using DvShortNumber = DvIntegerNumber<SoSFShort, DvIntSlider, DvSlider::ShortKind>;
using DvUInt32Number = DvIntegerNumber<SoSFUInt32, DvUIntSlider, DvSlider::UInt32Kind>;
using DvUShortNumber = DvIntegerNumber<SoSFUShort, DvUIntSlider, DvSlider::UShortKind>;
