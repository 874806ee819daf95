#include "FieldEditors/DvEnumEntries.h"

#include "FieldEditors/DvFieldText.h"

#include <Inventor/SbName.h>

std::vector<DvEnumEntry> enumEntries(const SoSFEnum& field)
{
    std::vector<DvEnumEntry> entries;
    for (int i = 0; i < field.getNumEnums(); ++i) {
        SbName name;
        const int value = field.getEnum(i, name);
        entries.push_back({DvFieldText::toQString(SbString(name.getString())), value});
    }
    return entries;
}
