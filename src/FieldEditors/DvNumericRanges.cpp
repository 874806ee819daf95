#include "FieldEditors/DvNumericRanges.h"

#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldContainer.h>
#include <Inventor/nodes/SoComplexity.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoMaterial.h>

#include <QString>

#include <map>
#include <string>
#include <utility>

namespace {

struct Row
{
    const char* node;
    const char* field;
    const char* minimum;
    const char* maximum;
    const char* kind;
    const char* bounded;
};

const Row s_table[] = {
    {"DefaultNode", "floatField", "0.0", "10.0", "f", "0"},
    {"DefaultNode", "doubleField", "0.0", "10.0", "d", "0"},
    {"DefaultNode", "intField", "0", "100", "i", "0"},
    {"Complexity", "value", "0.0", "1.0", "f", "1"},
    {"Complexity", "textureQuality", "0.0", "1.0", "f", "1"},
    {"DirectionalLight", "intensity", "0.0", "1.0", "f", "1"},
    {"Material", "transparency", "0.0", "1.0", "f", "1"},
};
static_assert(sizeof(s_table) / sizeof(s_table[0]) == DvNumericRanges::rowCount);

double parse(const char* text, char kind)
{
    const QString number = QString::fromLatin1(text);
    if (kind == 'f')
        return static_cast<double>(number.toFloat());
    return kind == 'i' ? number.toInt(nullptr, 10) : number.toDouble();
}

using Key = std::pair<std::string, std::string>;

std::map<Key, DvNumericRanges::Range> parsedTable()
{
    std::map<Key, DvNumericRanges::Range> ranges;
    for (const Row& row : s_table) {
        const char kind = row.kind[0];
        ranges[{row.node, row.field}] = {parse(row.minimum, kind), parse(row.maximum, kind), kind,
                                         row.bounded[0] == '1'};
    }
    return ranges;
}

bool isOfShareType(const SoFieldContainer* container)
{
    return container && (container->isOfType(SoComplexity::getClassTypeId()) ||
                         container->isOfType(SoMaterial::getClassTypeId()) ||
                         container->isOfType(SoDirectionalLight::getClassTypeId()));
}

} // namespace

const DvNumericRanges::Range& DvNumericRanges::forReal(const SoField& field,
                                                       const char* defaultField)
{
    return isOfShareType(field.getContainer()) ? *find("Complexity", "value")
                                               : *find("DefaultNode", defaultField);
}

const DvNumericRanges::Range& DvNumericRanges::forIntegers()
{
    return *find("DefaultNode", "intField");
}

const DvNumericRanges::Range* DvNumericRanges::find(const char* node, const char* field)
{
    static const std::map<Key, Range> s_ranges = parsedTable();
    const auto found = s_ranges.find({node, field});
    return found == s_ranges.end() ? nullptr : &found->second;
}
