#include "tests/support/FieldBits.h"

#include <Inventor/fields/SoFields.h>

namespace {

template <class Value>
QByteArray bytesOf(const Value& value)
{
    return QByteArray(reinterpret_cast<const char*>(&value), int(sizeof(value)));
}

QByteArray bytesOf(const SbString& value)
{
    return QByteArray(value.getString(), value.getLength());
}

QByteArray bytesOf(const SbName& value)
{
    return QByteArray(value.getString(), value.getLength());
}

QByteArray bytesOfImage(const SoSFImage& image)
{
    SbVec2s size;
    int components = 0;
    const unsigned char* const pixels = image.getValue(size, components);
    QByteArray bytes = bytesOf(size) + bytesOf(components);
    if (pixels)
        bytes.append(reinterpret_cast<const char*>(pixels), size[0] * size[1] * components);
    return bytes;
}

/** Answers whether Field is the field's class, and adds the value's bytes then. */
template <class Field>
bool addIf(SoField& field, QByteArray& bytes)
{
    const bool is = field.isOfType(Field::getClassTypeId());
    if (is)
        bytes += bytesOf(static_cast<Field&>(field).getValue());
    return is;
}

template <class... Fields>
bool addIfAny(SoField& field, QByteArray& bytes)
{
    return (addIf<Fields>(field, bytes) || ...);
}

/** The same for the rows of a multiple-value field. */
template <class Field>
bool addRowsIf(SoField& field, QByteArray& bytes)
{
    const bool is = field.isOfType(Field::getClassTypeId());
    if (is) {
        auto& rows = static_cast<Field&>(field);
        for (int row = 0; row < rows.getNum(); ++row)
            bytes += bytesOf(rows[row]);
    }
    return is;
}

template <class... Fields>
bool addRowsIfAny(SoField& field, QByteArray& bytes)
{
    return (addRowsIf<Fields>(field, bytes) || ...);
}

} // namespace

QByteArray bitsOf(SoField& field)
{
    QByteArray bytes;
    if (addIfAny<SoSFBool, SoSFBox2d, SoSFBox2f, SoSFBox2i32, SoSFBox2s, SoSFBox3d, SoSFBox3f,
                 SoSFBox3i32, SoSFBox3s, SoSFColor, SoSFColorRGBA, SoSFDouble, SoSFEnum, SoSFFloat,
                 SoSFInt32, SoSFMatrix, SoSFName, SoSFNode, SoSFPath, SoSFEngine, SoSFPlane,
                 SoSFRotation, SoSFShort, SoSFString, SoSFTime, SoSFUInt32, SoSFUShort, SoSFVec2d,
                 SoSFVec2f, SoSFVec2i32, SoSFVec2s, SoSFVec3d, SoSFVec3f, SoSFVec3i32, SoSFVec3s,
                 SoSFVec4d, SoSFVec4f, SoSFVec4i32, SoSFVec4s>(field, bytes))
        return bytes;
    if (addRowsIfAny<SoMFColor, SoMFDouble, SoMFFloat, SoMFMatrix, SoMFPlane, SoMFRotation,
                     SoMFVec2d, SoMFVec2f, SoMFVec3d, SoMFVec3f, SoMFVec4d, SoMFVec4f>(field,
                                                                                       bytes))
        return bytes;
    if (field.isOfType(SoSFImage::getClassTypeId()))
        return bytesOfImage(static_cast<SoSFImage&>(field));
    SbString text;
    field.get(text);
    return bytesOf(text);
}
