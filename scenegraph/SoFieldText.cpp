#include "scenegraph/SoFieldText.h"

#include "scenegraph/SoQuotedText.h"
#include "scenegraph/SoRealText.h"

#include <Inventor/fields/SoMFColorRGBA.h>
#include <Inventor/fields/SoMFEngine.h>
#include <Inventor/fields/SoMFName.h>
#include <Inventor/fields/SoMFNode.h>
#include <Inventor/fields/SoMFString.h>
#include <Inventor/fields/SoSFColorRGBA.h>
#include <Inventor/fields/SoSFEngine.h>
#include <Inventor/fields/SoSFImage.h>
#include <Inventor/fields/SoSFInt32.h>
#include <Inventor/fields/SoSFName.h>
#include <Inventor/fields/SoSFNode.h>
#include <Inventor/fields/SoSFShort.h>
#include <Inventor/fields/SoSFString.h>
#include <Inventor/fields/SoSFUInt32.h>
#include <Inventor/fields/SoSFUShort.h>

#include <array>
#include <charconv>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

SoNode* const noNode = nullptr;
SoEngine* const noEngine = nullptr;

/** The field as one of class Field, or null. */
template <class Field>
Field* as(SoField* field)
{
    const bool is = field->isOfType(Field::getClassTypeId());
    return is ? static_cast<Field*>(field) : nullptr;
}

/** Sets the value and answers true if Field is the field's class. */
template <class Field, class Value>
bool setIf(SoField* field, const Value& value)
{
    auto* typed = as<Field>(field);
    if (typed)
        typed->setValue(value);
    return typed != nullptr;
}

template <class Field, class Value>
bool set1If(SoMField* field, int row, const Value& value)
{
    auto* typed = as<Field>(field);
    if (typed)
        typed->set1Value(row, value);
    return typed != nullptr;
}

/** All values of the field at once, with one notification. */
template <class Value, class Field, class Source>
void setAll(Field* field, const std::vector<Source>& values)
{
    const SbBool wasEnabled = field->enableNotify(FALSE);
    field->setNum(int(values.size()));
    for (size_t row = 0; row < values.size(); ++row)
        field->set1Value(int(row), Value(values[row]));
    field->enableNotify(wasEnabled);
    field->touch();
}

bool isNull(const SbString& text)
{
    return text == "NULL";
}

bool setNull(SoField* field)
{
    return setIf<SoSFNode>(field, noNode) || setIf<SoSFEngine>(field, noEngine) ||
           setIf<SoMFNode>(field, noNode) || setIf<SoMFEngine>(field, noEngine);
}

bool set1Null(SoMField* field, int row)
{
    return set1If<SoMFNode>(field, row, noNode) || set1If<SoMFEngine>(field, row, noEngine);
}

bool setString(SoField* field, const SbString& text)
{
    SbString value;
    return SoQuotedText::read(text, value) &&
           (setIf<SoSFString>(field, value) || setIf<SoSFName>(field, SbName(value)));
}

bool set1String(SoMField* field, int row, const SbString& text)
{
    SbString value;
    return SoQuotedText::read(text, value) &&
           (set1If<SoMFString>(field, row, value) || set1If<SoMFName>(field, row, SbName(value)));
}

bool setStrings(SoField* field, const SbString& text)
{
    auto* strings = as<SoMFString>(field);
    auto* names = as<SoMFName>(field);
    std::vector<SbString> values;
    if ((!strings && !names) || !SoQuotedText::readAll(text, values))
        return false;
    if (strings)
        setAll<SbString>(strings, values);
    else
        setAll<SbName>(names, values);
    return true;
}

bool set1Color(SoMField* field, int row, const SbString& text)
{
    auto* colors = as<SoMFColorRGBA>(field);
    if (!colors)
        return false;
    SoSFColorRGBA color;
    const bool isColor = color.set(text.getString());
    if (isColor)
        colors->set1Value(row, color.getValue());
    return isColor;
}

bool setColors(SoField* field, const SbString& text)
{
    auto* colors = as<SoMFColorRGBA>(field);
    if (!colors)
        return false;
    std::string rows(text.getString());
    if (rows.size() > 2 && rows.front() == '[' && rows.back() == ']')
        rows = rows.substr(1, rows.size() - 2);
    std::vector<SbColor4f> values;
    std::istringstream stream(rows);
    for (std::string row; std::getline(stream, row, ',');) {
        SoSFColorRGBA color;
        if (!color.set(row.c_str()))
            return false;
        values.push_back(color.getValue());
    }
    setAll<SbColor4f>(colors, values);
    return true;
}

/** An image without pixels that says how many components one would have. */
bool setEmptyImage(SoField* field, const SbString& text)
{
    auto* image = as<SoSFImage>(field);
    if (!image)
        return false;
    std::istringstream stream(text.getString());
    int width = -1;
    int height = -1;
    int components = -1;
    stream >> width >> height >> components;
    const bool isEmpty = width == 0 && height == 0 && components >= 0 && components <= 4;
    if (isEmpty)
        image->setValue(SbVec2s(0, 0), components, nullptr);
    return isEmpty;
}

/** The value's own length, where the text is a quoted one. */
bool isTooLongForName(const SbString& text)
{
    if (text.getLength() <= SoFieldText::longestName)
        return false;
    SbString value;
    const bool isQuoted = SoQuotedText::read(text, value);
    return !isQuoted || value.getLength() > SoFieldText::longestName;
}

bool setExactly(SoField* field, const SbString& text)
{
    if (text[0] == '"' && setString(field, text))
        return true;
    if (isNull(text) && setNull(field))
        return true;
    return SoRealText::set(field, text) || setStrings(field, text) || setColors(field, text) ||
           setEmptyImage(field, text);
}

bool set1Exactly(SoMField* field, int row, const SbString& text)
{
    if (text[0] == '"')
        return set1String(field, row, text);
    if (isNull(text))
        return set1Null(field, row);
    return SoRealText::set1(field, row, text) || set1Color(field, row, text);
}

/** Longer than the shortest text of any number. */
using NumberText = std::array<char, 32>;

template <class Field>
bool getNumberIf(SoField* field, SbString& text)
{
    const Field* const typed = as<Field>(field);
    if (!typed)
        return false;
    NumberText characters = {};
    // The last one stays zero.
    std::to_chars(characters.data(), characters.data() + characters.size() - 1, typed->getValue());
    text = characters.data();
    return true;
}

bool getNumber(SoField* field, SbString& text)
{
    return SoRealText::get(field, text) || getNumberIf<SoSFInt32>(field, text) ||
           getNumberIf<SoSFUInt32>(field, text) || getNumberIf<SoSFShort>(field, text) ||
           getNumberIf<SoSFUShort>(field, text);
}

/**
 * Whether Coin can write the field: it looks into the container of the field that the values come
 * from, and crashes where that has none.
 */
bool canBeWritten(const SoField& field)
{
    SoField* master = nullptr;
    return !field.isConnected() || !field.getConnectedField(master) || master->getContainer();
}

/** The field's values in a field that is not connected. */
std::unique_ptr<SoField> unconnectedCopy(const SoField& field)
{
    field.evaluate();
    std::unique_ptr<SoField> copy(static_cast<SoField*>(field.getTypeId().createInstance()));
    copy->copyFrom(field);
    return copy;
}

bool touchedUnless(SbBool taken, SoField* field)
{
    if (!taken)
        field->touch();
    return taken;
}

} // namespace

void SoFieldText::get(SoField* field, SbString& text)
{
    if (getNumber(field, text))
        return;
    if (canBeWritten(*field))
        field->get(text);
    else
        unconnectedCopy(*field)->get(text);
}

void SoFieldText::get1(SoMField* field, int row, SbString& text)
{
    if (SoRealText::get1(field, row, text))
        return;
    if (canBeWritten(*field))
        field->get1(row, text);
    else
        static_cast<SoMField&>(*unconnectedCopy(*field)).get1(row, text);
}

SbBool SoFieldText::set(SoField* field, const SbString& text)
{
    if (field->isOfType(SoSFName::getClassTypeId()) && isTooLongForName(text))
        return FALSE;
    return setExactly(field, text) || touchedUnless(field->set(text.getString()), field);
}

SbBool SoFieldText::set1(SoMField* field, int row, const SbString& text)
{
    if (field->isOfType(SoMFName::getClassTypeId()) && isTooLongForName(text))
        return FALSE;
    return set1Exactly(field, row, text) ||
           touchedUnless(field->set1(row, text.getString()), field);
}
