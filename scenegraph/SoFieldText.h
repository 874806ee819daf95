#pragma once

#include "TavrikSceneGraphExport.h"

#include <Inventor/SbString.h>

class SoField;
class SoMField;

/**
 * Puts a text that SoField::get() or SoMField::get1() gave back into the field, without the losses
 * of Coin's own reader: a string with a quotation mark before a line break, or a backslash at its
 * end, comes back otherwise or not at all; a null node or engine and an image without pixels are
 * refused; colours in a multiple-value field keep their old alpha; of real numbers, alone or in
 * vectors, the extremes become 0, and what is none is refused.
 *
 * Any other text is the field's own to read. A text that it refuses may leave half a value without
 * telling anybody, so the field is touched then: whoever shows it shows what is really there.
 */
class TAVRIKSCENEGRAPH_EXPORT SoFieldText
{
public:
    /**
     * The field's text, as SoField::get() gives it; of a number, and of real numbers in a vector, a
     * colour or a matrix, the shortest one that set() reads back to the last bit, which takes a
     * fraction of the time.
     */
    static void get(SoField* field, SbString& text);
    /** The same for one value; the row must exist (SoMFieldRows::get1() checks it). */
    static void get1(SoMField* field, int row, SbString& text);
    /** In bytes. Coin copies a longer name past the end of the memory that it keeps names in. */
    static constexpr int longestName = 65503;

    /** FALSE when the field refused the text. */
    static SbBool set(SoField* field, const SbString& text);
    /** The same for one value; the row must exist (SoMFieldRows::set1() checks it). */
    static SbBool set1(SoMField* field, int row, const SbString& text);
};
