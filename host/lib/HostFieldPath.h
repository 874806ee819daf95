#pragma once

#include "TavrikHostExport.h"

#include <QString>

class SoField;

/** Words where a field is: `Cone "hat".height` for the height of the cone named hat. */
class TAVRIKHOST_EXPORT HostFieldPath
{
public:
    /**
     * The type of the field's container without "So", its name in quotes where it has one, and the
     * field's name. A global field is worded `GlobalField "name"`; a field that has no container,
     * or is none of its container's own, by its type; null is an empty text.
     */
    static QString text(const SoField* field);
};
