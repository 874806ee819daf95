#pragma once

#include <Inventor/fields/SoSFEnum.h>

#include <QString>

#include <vector>

/** One name of an enumeration or bit mask, and what it stands for. */
struct DvEnumEntry
{
    QString name;
    int value;
};

/** The names that a field's own enumeration has, in the field's order. */
std::vector<DvEnumEntry> enumEntries(const SoSFEnum& field);
