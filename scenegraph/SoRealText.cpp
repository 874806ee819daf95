#include "scenegraph/SoRealText.h"

#include <Inventor/fields/SoMFColor.h>
#include <Inventor/fields/SoMFDouble.h>
#include <Inventor/fields/SoMFFloat.h>
#include <Inventor/fields/SoMFMatrix.h>
#include <Inventor/fields/SoMFVec2d.h>
#include <Inventor/fields/SoMFVec2f.h>
#include <Inventor/fields/SoMFVec3d.h>
#include <Inventor/fields/SoMFVec3f.h>
#include <Inventor/fields/SoMFVec4d.h>
#include <Inventor/fields/SoMFVec4f.h>
#include <Inventor/fields/SoSFColor.h>
#include <Inventor/fields/SoSFDouble.h>
#include <Inventor/fields/SoSFFloat.h>
#include <Inventor/fields/SoSFMatrix.h>
#include <Inventor/fields/SoSFVec2d.h>
#include <Inventor/fields/SoSFVec2f.h>
#include <Inventor/fields/SoSFVec3d.h>
#include <Inventor/fields/SoSFVec3f.h>
#include <Inventor/fields/SoSFVec4d.h>
#include <Inventor/fields/SoSFVec4f.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <limits>
#include <optional>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace {

bool isBlank(char character)
{
    return std::isspace(static_cast<unsigned char>(character)) != 0;
}

/** Takes the next word, up to a blank, off the text; empty at its end. */
std::string_view takeWord(std::string_view& text)
{
    const auto* const begin = std::find_if_not(text.begin(), text.end(), isBlank);
    const auto* const end = std::find_if(begin, text.end(), isBlank);
    const std::string_view word = text.substr(static_cast<std::size_t>(begin - text.begin()),
                                              static_cast<std::size_t>(end - begin));
    text.remove_prefix(static_cast<std::size_t>(end - text.begin()));
    return word;
}

/** The number that the whole word stands for; a number beyond the type is the type's largest. */
template <class Real>
std::optional<Real> realOf(std::string_view word)
{
    const char* const end = word.data() + word.size();
    Real number = 0;
    const auto [rest, error] = std::from_chars(word.data(), end, number);
    if (rest != end || error == std::errc::invalid_argument)
        return std::nullopt;
    if (error == std::errc())
        return number;
    // Coin rounds the largest number up when it writes it.
    constexpr long double largest = std::numeric_limits<Real>::max();
    long double wide = 0;
    if (std::from_chars(word.data(), end, wide).ec != std::errc())
        return std::nullopt;
    return static_cast<Real>(std::clamp(wide, -largest, largest));
}

template <class Numbers>
bool readNumbers(const SbString& text, Numbers& numbers)
{
    std::string_view rest(text.getString(), static_cast<std::size_t>(text.getLength()));
    for (auto& number : numbers) {
        const auto read = realOf<typename Numbers::value_type>(takeWord(rest));
        if (!read)
            return false;
        number = *read;
    }
    return takeWord(rest).empty();
}

template <class Numbers>
SbString textOf(const Numbers& numbers)
{
    // Longer than the shortest text of any number with the blank before it.
    constexpr std::size_t longest = 32;
    std::array<char, std::tuple_size_v<Numbers>* longest> characters = {};
    // The last one stays zero.
    char* const end = characters.data() + characters.size() - 1;
    char* at = characters.data();
    for (const auto number : numbers) {
        if (at != characters.data())
            *at++ = ' ';
        at = std::to_chars(at, end, number).ptr;
    }
    return {characters.data()};
}

template <class Numbers, class Value>
Numbers numbersOf(const Value& value)
{
    Numbers numbers = {};
    if constexpr (std::is_arithmetic_v<Value>)
        numbers.front() = value;
    else if constexpr (std::is_same_v<Value, SbMatrix>)
        std::copy_n(&value.getValue()[0][0], numbers.size(), numbers.begin());
    else
        std::copy_n(value.getValue(), numbers.size(), numbers.begin());
    return numbers;
}

template <class Value, class Numbers>
Value valueOf(const Numbers& numbers)
{
    if constexpr (std::is_same_v<Value, SbMatrix>) {
        SbMatrix matrix;
        matrix.setValue(numbers.data());
        return matrix;
    } else if constexpr (std::is_arithmetic_v<Value>) {
        return numbers.front();
    } else {
        return Value(numbers.data());
    }
}

/** A kind of value: its two field classes, and the numbers that it is made of. */
template <class SingleField, class MultipleField, class Value, class Real, std::size_t count>
struct Kind
{
    using Numbers = std::array<Real, count>;

    static bool get(SoField* field, SbString& text)
    {
        const bool is = field->isOfType(SingleField::getClassTypeId());
        if (is)
            text = textOf(numbersOf<Numbers, Value>(static_cast<SingleField*>(field)->getValue()));
        return is;
    }

    static bool get1(SoMField* field, int row, SbString& text)
    {
        const bool is = field->isOfType(MultipleField::getClassTypeId());
        if (is)
            text = textOf(numbersOf<Numbers, Value>((*static_cast<MultipleField*>(field))[row]));
        return is;
    }

    static bool set(SoField* field, const SbString& text)
    {
        Numbers numbers = {};
        if (!field->isOfType(SingleField::getClassTypeId()) || !readNumbers(text, numbers))
            return false;
        static_cast<SingleField*>(field)->setValue(valueOf<Value>(numbers));
        return true;
    }

    static bool set1(SoMField* field, int row, const SbString& text)
    {
        Numbers numbers = {};
        if (!field->isOfType(MultipleField::getClassTypeId()) || !readNumbers(text, numbers))
            return false;
        static_cast<MultipleField*>(field)->set1Value(row, valueOf<Value>(numbers));
        return true;
    }
};

template <class... Kinds>
struct AnyOf
{
    static bool get(SoField* field, SbString& text) { return (Kinds::get(field, text) || ...); }
    static bool get1(SoMField* field, int row, SbString& text)
    {
        return (Kinds::get1(field, row, text) || ...);
    }
    static bool set(SoField* field, const SbString& text)
    {
        return (Kinds::set(field, text) || ...);
    }
    static bool set1(SoMField* field, int row, const SbString& text)
    {
        return (Kinds::set1(field, row, text) || ...);
    }
};

using AnyKind = AnyOf<
    Kind<SoSFFloat, SoMFFloat, float, float, 1>, Kind<SoSFDouble, SoMFDouble, double, double, 1>,
    Kind<SoSFVec2f, SoMFVec2f, SbVec2f, float, 2>, Kind<SoSFVec3f, SoMFVec3f, SbVec3f, float, 3>,
    Kind<SoSFVec4f, SoMFVec4f, SbVec4f, float, 4>, Kind<SoSFVec2d, SoMFVec2d, SbVec2d, double, 2>,
    Kind<SoSFVec3d, SoMFVec3d, SbVec3d, double, 3>, Kind<SoSFVec4d, SoMFVec4d, SbVec4d, double, 4>,
    Kind<SoSFColor, SoMFColor, SbColor, float, 3>,
    Kind<SoSFMatrix, SoMFMatrix, SbMatrix, float, 16>>;

} // namespace

bool SoRealText::get(SoField* field, SbString& text)
{
    return AnyKind::get(field, text);
}

bool SoRealText::get1(SoMField* field, int row, SbString& text)
{
    return AnyKind::get1(field, row, text);
}

bool SoRealText::set(SoField* field, const SbString& text)
{
    return AnyKind::set(field, text);
}

bool SoRealText::set1(SoMField* field, int row, const SbString& text)
{
    return AnyKind::set1(field, row, text);
}
