#pragma once

#include <Inventor/SbString.h>

class SoField;
class SoMField;

/**
 * Writes and reads the texts of real numbers, alone or as the components of a vector, a colour or a
 * matrix. Coin writes too few digits for many of them, makes 0 of the extremes when it reads, and
 * refuses what is no number: a value would not come back.
 */
class SoRealText
{
public:
    /** The shortest text that set() reads to the last bit; FALSE for a field of other values. */
    static bool get(SoField* field, SbString& text);
    /** The same for one row, which must exist. */
    static bool get1(SoMField* field, int row, SbString& text);

    /**
     * FALSE, and the field untouched, for a field of other values and for a text that is not
     * exactly as many numbers as its value has.
     */
    static bool set(SoField* field, const SbString& text);
    /** The same for one row, which must exist. */
    static bool set1(SoMField* field, int row, const SbString& text);
};
