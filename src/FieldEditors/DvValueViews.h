#pragma once

#include <Inventor/fields/SoSFBox3s.h>
#include <Inventor/fields/SoSFColor.h>
#include <Inventor/fields/SoSFMatrix.h>
#include <Inventor/fields/SoSFPlane.h>
#include <Inventor/fields/SoSFRotation.h>
#include <Inventor/fields/SoSFVec2f.h>
#include <Inventor/fields/SoSFVec2i32.h>
#include <Inventor/fields/SoSFVec2s.h>
#include <Inventor/fields/SoSFVec3f.h>
#include <Inventor/fields/SoSFVec4f.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <type_traits>

/*
 * How the values of the field types are made of numbers, and back: facts only, shared by the
 * editors. Each view says which field class it is for, how many numbers there are, numbers(value)
 * and value(numbers).
 */

/** A number as a component: of an integer type, one beyond its limits is the limit, none is 0. */
template <class Component>
Component toComponent(double number)
{
    if constexpr (std::is_integral_v<Component>) {
        using Limits = std::numeric_limits<Component>;
        if (number != number)
            return 0;
        return static_cast<Component>(std::clamp(number, static_cast<double>(Limits::min()),
                                                 static_cast<double>(Limits::max())));
    } else {
        return static_cast<Component>(number);
    }
}

/** What every view names: its field class, the class of the field's value, and N numbers. */
template <class FieldType, class ValueType, std::size_t N>
struct DvViewTypes
{
    using Field = FieldType;
    using Value = ValueType;
    using Numbers = std::array<double, N>;
};

/** A value that is N components of one type, each reached by its index. */
template <class FieldType, class ValueType, class Component, std::size_t N>
struct DvComponentsView : DvViewTypes<FieldType, ValueType, N>
{
    using typename DvViewTypes<FieldType, ValueType, N>::Numbers;

    static Numbers numbers(const ValueType& value)
    {
        Numbers numbers = {};
        for (std::size_t i = 0; i < N; ++i)
            numbers[i] = static_cast<double>(value[static_cast<int>(i)]);
        return numbers;
    }
    static ValueType value(const Numbers& numbers)
    {
        ValueType value;
        for (std::size_t i = 0; i < N; ++i)
            value[static_cast<int>(i)] = toComponent<Component>(numbers[i]);
        return value;
    }
};

using DvVec2fView = DvComponentsView<SoSFVec2f, SbVec2f, float, 2>;
using DvVec3fView = DvComponentsView<SoSFVec3f, SbVec3f, float, 3>;
using DvVec4fView = DvComponentsView<SoSFVec4f, SbVec4f, float, 4>;
using DvColorView = DvComponentsView<SoSFColor, SbColor, float, 3>;
using DvVec2sView = DvComponentsView<SoSFVec2s, SbVec2s, short, 2>;
using DvVec2i32View = DvComponentsView<SoSFVec2i32, SbVec2i32, int32_t, 2>;

/** A plane as its normal and its distance from the origin. */
struct DvPlaneView : DvViewTypes<SoSFPlane, SbPlane, 4>
{
    static Numbers numbers(const SbPlane& plane);
    static SbPlane value(const Numbers& numbers);
};

/** A rotation as its axis and its angle in radians. */
struct DvAxisAngleView : DvViewTypes<SoSFRotation, SbRotation, 4>
{
    static Numbers numbers(const SbRotation& rotation);
    static SbRotation value(const Numbers& numbers);
};

/** A rotation as the four numbers of its quaternion. */
struct DvQuaternionView : DvViewTypes<SoSFRotation, SbRotation, 4>
{
    static Numbers numbers(const SbRotation& rotation);
    static SbRotation value(const Numbers& numbers);
};

/** A box as its smallest corner, then its largest. */
struct DvBox3sView : DvViewTypes<SoSFBox3s, SbBox3s, 6>
{
    static Numbers numbers(const SbBox3s& box);
    static SbBox3s value(const Numbers& numbers);
};

/** A matrix, row by row. */
struct DvMatrixView : DvViewTypes<SoSFMatrix, SbMatrix, 16>
{
    static Numbers numbers(const SbMatrix& matrix);
    static SbMatrix value(const Numbers& numbers);
};
