#pragma once

#include <Inventor/fields/SoSFVec3f.h>

#include <array>
#include <cstddef>

/*
 * How the values of the field types are made of numbers, and back: facts only, shared by the
 * editors. Each view says which field class it is for, how many numbers there are, numbers(value)
 * and value(numbers).
 */

/** A value that is N components of one type, each reached by its index. */
template <class FieldType, class ValueType, class Component, std::size_t N>
struct DvComponentsView
{
    using Field = FieldType;
    using Numbers = std::array<double, N>;

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
            value[static_cast<int>(i)] = static_cast<Component>(numbers[i]);
        return value;
    }
};

using DvVec3fView = DvComponentsView<SoSFVec3f, SbVec3f, float, 3>;
