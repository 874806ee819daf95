#pragma once

#include "TavrikSceneGraphExport.h"

#include <Inventor/SbBasic.h>

class SbString;
class SoField;

/** Asks whether a text is a value, before it is written. */
class TAVRIKSCENEGRAPH_EXPORT SoFieldTextCheck
{
public:
    /**
     * Whether a field of this field's type reads the text, and the whole of it: SoField::set()
     * takes "1F" for 1 and "1,5" for 1, and leaves half a vector behind when a number is missing.
     * A part of a node kit takes nodes of the part's type only. The field itself is not touched,
     * and the reader's complaints reach nobody.
     */
    static SbBool accepts(const SoField& field, const SbString& text);
};
