#pragma once

#include <Inventor/SbString.h>

class SoField;
class SoMField;

/**
 * Reads the texts of real numbers, alone or as the components of a vector, a colour or a matrix.
 * Coin's reader makes 0 of the extremes and refuses what is no number, so that a value which has
 * come so far would be lost by being written and read.
 */
class SoRealText
{
public:
    /**
     * FALSE, and the field untouched, for a field of other values and for a text that is not
     * exactly as many numbers as its value has.
     */
    static bool set(SoField* field, const SbString& text);
    /** The same for one row, which must exist. */
    static bool set1(SoMField* field, int row, const SbString& text);
};
