#pragma once

#include "TavrikHostExport.h"

#include <QString>

class SoField;

/**
 * A field's value in one short line, for lists. A long field is never written out: only its first
 * values are read; a field that holds nodes, paths or engines names them.
 */
class TAVRIKHOST_EXPORT HostFieldSummary
{
public:
    /** Lines of at most this many characters, the "…" of a cut one included. */
    static constexpr int s_maximalLength = 200;

    static QString text(SoField& field);
};
