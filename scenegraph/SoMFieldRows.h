#pragma once

#include "TavrikSceneGraphExport.h"

#include <Inventor/SbString.h>

class SoMField;

/**
 * The rows of a multiple-value field, as texts, with their numbers checked: Coin itself checks none
 * and crashes, loops for ever or loses values on rows that do not exist.
 *
 * Outside of the field's rows nothing happens: a warning says so, and the answer is FALSE. A
 * connected field takes over its master's values first. Each change notifies as Coin's own call
 * does; texts are put back exactly (SoFieldText), and no row ever holds undefined memory.
 */
class TAVRIKSCENEGRAPH_EXPORT SoMFieldRows
{
public:
    static SbBool get1(SoMField* field, int row, SbString& text);
    /** FALSE also when the field refuses the text. */
    static SbBool set1(SoMField* field, int row, const SbString& text);

    /**
     * Makes room before row start, which may be the end. The new rows hold copies of the rows after
     * them, at the end of the last one, in an empty field zeros; those of nodes, paths and engines
     * are null. One notification.
     */
    static SbBool insertSpace(SoMField* field, int start, int count);
    /** Deleting no rows does nothing; a count of -1 is refused, not "up to the end". */
    static SbBool deleteValues(SoMField* field, int start, int count);

    /**
     * Inserts rows and sets each to the text of two quotation marks: an empty string where the
     * field holds strings. Where it does not, the field refuses the text and the row keeps what
     * insertSpace() gave it.
     */
    static SbBool insertEmpty(SoMField* field, int start, int count);

    /** Reads the texts of count rows into an array of that length. */
    static SbBool readTexts(SoMField* field, int start, int count, SbString* texts);
    /** Inserts rows with these texts: the way back from readTexts() and deleteValues(). */
    static SbBool insertTexts(SoMField* field, int start, int count, const SbString* texts);
};
