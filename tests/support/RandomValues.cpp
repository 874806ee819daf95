#include "tests/support/RandomValues.h"

#include "scenegraph/SoSFFilePathString.h"

#include <Inventor/fields/SoFields.h>

#include <QByteArray>
#include <QList>

#include <array>
#include <cstring>
#include <limits>

namespace {

template <class Real>
using Limits = std::numeric_limits<Real>;

template <class Number>
Number anyBits(QRandomGenerator& random)
{
    const quint64 bits = random.generate64();
    Number number = {};
    std::memcpy(&number, &bits, sizeof(number));
    // A signalling one that is no number would be made quiet by being copied, here or there.
    return number == number ? number : number + number;
}

template <class Real>
Real peculiarReal(QRandomGenerator& random)
{
    static const Real s_numbers[] = {Real(0),
                                     -Real(0),
                                     Limits<Real>::min(),
                                     Limits<Real>::denorm_min(),
                                     -Limits<Real>::denorm_min(),
                                     Limits<Real>::max(),
                                     Limits<Real>::lowest(),
                                     Limits<Real>::infinity(),
                                     -Limits<Real>::infinity(),
                                     Limits<Real>::quiet_NaN(),
                                     Limits<Real>::epsilon(),
                                     Real(1e-7),
                                     Real(0.1),
                                     Real(123456.789),
                                     Real(16777217),
                                     Real(-1)};
    return s_numbers[random.bounded(int(std::size(s_numbers)))];
}

template <class Real>
Real randomReal(QRandomGenerator& random)
{
    switch (random.bounded(4)) {
    case 0:
        return anyBits<Real>(random);
    case 1:
        return peculiarReal<Real>(random);
    case 2:
        return Real(random.bounded(2001) - 1000) / Real(100);
    default:
        return Real((random.generateDouble() - 0.5) * 2e4);
    }
}

template <class Integer>
Integer randomInteger(QRandomGenerator& random)
{
    switch (random.bounded(4)) {
    case 0:
        return Limits<Integer>::min();
    case 1:
        return Limits<Integer>::max();
    case 2:
        return Integer(random.bounded(100));
    default:
        return anyBits<Integer>(random);
    }
}

template <class Number>
Number randomNumber(QRandomGenerator& random)
{
    if constexpr (Limits<Number>::is_integer)
        return randomInteger<Number>(random);
    else
        return randomReal<Number>(random);
}

template <class Number, std::size_t N>
std::array<Number, N> randomNumbers(QRandomGenerator& random)
{
    std::array<Number, N> numbers = {};
    for (Number& number : numbers)
        number = randomNumber<Number>(random);
    return numbers;
}

/** Sets the field if Field is its class: one number, or a value with an index. */
template <class Field, class Number, std::size_t N = 1>
bool setIf(SoField& field, QRandomGenerator& random)
{
    if (field.getTypeId() != Field::getClassTypeId())
        return false;
    auto& typed = static_cast<Field&>(field);
    const auto numbers = randomNumbers<Number, N>(random);
    if constexpr (N == 1) {
        typed.setValue(numbers[0]);
    } else {
        auto value = typed.getValue();
        for (std::size_t i = 0; i < N; ++i)
            value[int(i)] = numbers[i];
        typed.setValue(value);
    }
    return true;
}

bool setNumbers(SoField& field, QRandomGenerator& random)
{
    return setIf<SoSFFloat, float>(field, random) || setIf<SoSFDouble, double>(field, random) ||
           setIf<SoSFInt32, int32_t>(field, random) || setIf<SoSFUInt32, uint32_t>(field, random) ||
           setIf<SoSFShort, short>(field, random) ||
           setIf<SoSFUShort, unsigned short>(field, random) ||
           setIf<SoSFVec2f, float, 2>(field, random) || setIf<SoSFVec3f, float, 3>(field, random) ||
           setIf<SoSFVec4f, float, 4>(field, random) || setIf<SoSFColor, float, 3>(field, random) ||
           setIf<SoSFVec2s, short, 2>(field, random) ||
           setIf<SoSFVec2i32, int32_t, 2>(field, random) ||
           setIf<SoSFVec3d, double, 3>(field, random);
}

SbVec3f randomVector(QRandomGenerator& random)
{
    const auto n = randomNumbers<float, 3>(random);
    return {n[0], n[1], n[2]};
}

bool setCompounds(SoField& field, QRandomGenerator& random)
{
    const SoType type = field.getTypeId();
    if (type == SoSFPlane::getClassTypeId()) {
        static_cast<SoSFPlane&>(field).setValue(
            SbPlane(randomVector(random), randomReal<float>(random)));
    } else if (type == SoSFRotation::getClassTypeId()) {
        static_cast<SoSFRotation&>(field).setValue(
            SbRotation(randomVector(random), randomReal<float>(random)));
    } else if (type == SoSFBox3s::getClassTypeId()) {
        const auto n = randomNumbers<short, 6>(random);
        static_cast<SoSFBox3s&>(field).setValue(SbBox3s(n[0], n[1], n[2], n[3], n[4], n[5]));
    } else if (type == SoSFMatrix::getClassTypeId()) {
        SbMatrix matrix;
        for (int i = 0; i < 16; ++i)
            matrix[i / 4][i % 4] = randomReal<float>(random);
        static_cast<SoSFMatrix&>(field).setValue(matrix);
    } else {
        return false;
    }
    return true;
}

SbName randomName(QRandomGenerator& random)
{
    static QList<QByteArray> s_names;
    if (s_names.size() < 300)
        s_names << randomText(random, random.bounded(20));
    return SbName(s_names[random.bounded(s_names.size())].constData());
}

bool setTexts(SoField& field, QRandomGenerator& random)
{
    const SoType type = field.getTypeId();
    if (type == SoSFName::getClassTypeId()) {
        static_cast<SoSFName&>(field).setValue(randomName(random));
        return true;
    }
    if (!type.isDerivedFrom(SoSFString::getClassTypeId()))
        return false;
    const QByteArray text = randomText(random, random.bounded(24));
    static_cast<SoSFString&>(field).setValue(SbString(text.constData()));
    return true;
}

void setImage(SoSFImage& image, QRandomGenerator& random)
{
    const SbVec2s size(short(random.bounded(20)), short(random.bounded(20)));
    const int components = random.bounded(1, 5);
    QByteArray pixels(size[0] * size[1] * components, '\0');
    for (char& pixel : pixels)
        pixel = char(random.bounded(256));
    image.setValue(size, components, reinterpret_cast<const unsigned char*>(pixels.constData()));
}

/** What is hard in texts: quotes, blanks, other scripts, and bytes that are no UTF-8. */
const char* const s_pieces[] = {"a",
                                "Z",
                                " ",
                                "0",
                                "\"",
                                "\\",
                                "\\\"",
                                "\n",
                                "\t",
                                "#",
                                "{",
                                "]",
                                ",",
                                "é",
                                "ß",
                                "Ж",
                                "ع",
                                "ה",
                                "中",
                                "が",
                                "한",
                                "हि",
                                "ไ",
                                "İ",
                                "€",
                                "🦜",
                                "\xef\xbb\xbf",
                                "\xe4",
                                "&",
                                "<b>",
                                "%1",
                                "\r\n",
                                "\x01",
                                "\x7f",
                                "\xe2\x80\xae",
                                "e\xcc\x81"};

} // namespace

QByteArray randomText(QRandomGenerator& random, int length)
{
    QByteArray text;
    while (text.size() < length)
        text += s_pieces[random.bounded(int(std::size(s_pieces)))];
    return text;
}

void setRandomValue(SoField& field, QRandomGenerator& random)
{
    if (setNumbers(field, random) || setCompounds(field, random) || setTexts(field, random))
        return;
    const SoType type = field.getTypeId();
    if (type == SoSFBool::getClassTypeId())
        static_cast<SoSFBool&>(field).setValue(random.bounded(2) == 1);
    else if (type.isDerivedFrom(SoSFEnum::getClassTypeId()))
        static_cast<SoSFEnum&>(field).setValue(random.bounded(2) ? random.bounded(10)
                                                                 : randomInteger<int>(random));
    else if (type == SoSFImage::getClassTypeId())
        setImage(static_cast<SoSFImage&>(field), random);
    else if (type == SoSFTime::getClassTypeId())
        static_cast<SoSFTime&>(field).setValue(SbTime(randomReal<double>(random)));
    else
        qFatal("no random values for %s", type.getName().getString());
}
