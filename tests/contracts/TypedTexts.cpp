#include "tests/contracts/TypedTexts.h"

#include "tests/support/FieldBits.h"

#include "FieldEditors/DvSFieldWidget.h"

#include <Inventor/fields/SoFields.h>

#include <QLineEdit>

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>

namespace {

bool isNoNumber(const QString& text)
{
    return text.contains(QLatin1String("nan")) || text.contains(QLatin1String("inf"));
}

template <class Field>
Field* as(SoField& field)
{
    return field.getTypeId() == Field::getClassTypeId() ? static_cast<Field*>(&field) : nullptr;
}

/** Component by component. */
template <class Field>
bool setComponentIf(SoField& field, int line, const QString& text)
{
    Field* const typed = as<Field>(field);
    if (typed) {
        auto value = typed->getValue();
        using Component = std::decay_t<decltype(value[0])>;
        value[line] = static_cast<Component>(text.toDouble());
        typed->setValue(value);
    }
    return typed != nullptr;
}

bool isSame(float one, float other)
{
    return std::memcmp(&one, &other, sizeof(float)) == 0;
}

bool setPlane(SoSFPlane& field, int line, const QString& text)
{
    SbVec3f normal = field.getValue().getNormal();
    float distance = field.getValue().getDistanceFromOrigin();
    float& component = line < 3 ? normal[line] : distance;
    if (isSame(component, text.toFloat()))
        return true;
    component = text.toFloat();
    field.setValue(SbPlane(normal, distance));
    return true;
}

bool setRotation(SoSFRotation& field, int line, const QString& text)
{
    SbVec3f axis;
    float radians = 0.0F;
    field.getValue(axis, radians);
    float& component = line < 3 ? axis[line] : radians;
    if (isSame(component, text.toFloat()))
        return true;
    component = text.toFloat();
    field.setValue(axis, radians);
    return true;
}

bool setBox(SoSFBox3s& field, int number, const QString& text)
{
    short bounds[6];
    field.getValue().getBounds(bounds[0], bounds[1], bounds[2], bounds[3], bounds[4], bounds[5]);
    bounds[number] = text.toShort();
    field.setValue(SbBox3s(bounds[0], bounds[1], bounds[2], bounds[3], bounds[4], bounds[5]));
    return true;
}

bool setMatrix(SoSFMatrix& field, int number, const QString& text)
{
    SbMatrix matrix = field.getValue();
    matrix[number / 4][number % 4] = text.toFloat();
    field.setValue(matrix);
    return true;
}

template <class Field>
bool setRealIf(SoField& field, const QString& text)
{
    Field* const typed = as<Field>(field);
    if (typed) {
        using Real = std::decay_t<decltype(typed->getValue())>;
        const auto limit = static_cast<double>(std::numeric_limits<Real>::max());
        // The slider's line clamps to the type.
        typed->setValue(static_cast<Real>(qBound(-limit, text.toDouble(), limit)));
    }
    return typed != nullptr;
}

template <class Field>
bool setIntegerIf(SoField& field, const QString& text)
{
    Field* const typed = as<Field>(field);
    using Integer = decltype(std::declval<Field>().getValue());
    if (typed)
        typed->setValue(static_cast<Integer>(text.toLongLong()));
    return typed != nullptr;
}

/** The field's whole text. Coin's own reader takes no number that it would round beyond the type.
 */
bool setVector(SoSFVec3d& field, const QString& text)
{
    const QStringList words = text.split(QLatin1Char(' '));
    SbVec3d vector;
    bool isNumber = words.size() == 3;
    for (int i = 0; isNumber && i < 3; ++i)
        vector[i] = words[i].toDouble(&isNumber);
    if (isNumber)
        field.setValue(vector);
    return isNumber;
}

bool setText(SoField& field, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    if (auto* const name = as<SoSFName>(field)) {
        name->setValue(SbName(bytes.constData()));
        return true;
    }
    const bool isString = field.isOfType(SoSFString::getClassTypeId());
    if (isString)
        static_cast<SoSFString&>(field).setValue(SbString(bytes.constData()));
    return isString;
}

/** The numbers that a line stands for; false for a line with any other text. */
bool setNumber(SoField& field, int line, const QString& text)
{
    if (auto* const plane = as<SoSFPlane>(field))
        return setPlane(*plane, line, text);
    if (auto* const rotation = as<SoSFRotation>(field))
        return setRotation(*rotation, line, text);
    if (auto* const box = as<SoSFBox3s>(field))
        return line > 0 && setBox(*box, line - 1, text);
    if (auto* const vector = as<SoSFVec3d>(field))
        return setVector(*vector, text);
    if (auto* const matrix = as<SoSFMatrix>(field))
        return line > 0 && setMatrix(*matrix, line - 1, text);
    return setComponentIf<SoSFVec2f>(field, line, text) ||
           setComponentIf<SoSFVec3f>(field, line, text) ||
           setComponentIf<SoSFVec4f>(field, line, text) ||
           setComponentIf<SoSFColor>(field, line, text) ||
           setComponentIf<SoSFVec2s>(field, line, text) ||
           setComponentIf<SoSFVec2i32>(field, line, text) || setRealIf<SoSFFloat>(field, text) ||
           setRealIf<SoSFDouble>(field, text) || setIntegerIf<SoSFInt32>(field, text) ||
           setIntegerIf<SoSFUInt32>(field, text) || setIntegerIf<SoSFShort>(field, text) ||
           setIntegerIf<SoSFUShort>(field, text);
}

} // namespace

QList<QLineEdit*> typedLines(const DvSFieldWidget& editor)
{
    QList<QLineEdit*> lines = editor.getWidget()->findChildren<QLineEdit*>();
    const auto isInPopup = [](const QLineEdit* line) {
        return line->objectName() == QLatin1String("m_popupLine");
    };
    std::stable_partition(lines.begin(), lines.end(), std::not_fn(isInPopup));
    return lines;
}

QByteArray bitsAfterTyping(SoField& field, int line, const QString& text)
{
    const std::unique_ptr<SoField> result(
        static_cast<SoField*>(field.getTypeId().createInstance()));
    result->copyFrom(field);
    // Neither a line for numbers nor Coin takes these.
    if (!setText(*result, text) && !isNoNumber(text) && !setNumber(*result, line, text))
        result->set(text.toUtf8().constData());
    return bitsOf(*result);
}
