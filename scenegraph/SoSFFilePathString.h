#pragma once

#include "TavrikSceneGraphExport.h"

#include <Inventor/fields/SoSFString.h>
#include <Inventor/fields/SoSubField.h>

/**
 * A string field that holds the path of a file, so that an editor can offer to choose the file. In
 * scene files it is written like a string; an unknown node declares it as "SFFilePathString".
 */
class TAVRIKSCENEGRAPH_EXPORT SoSFFilePathString : public SoSFString
{
    using inherited = SoSFString;
    // The assignment operator is the macro's.
    // NOLINTNEXTLINE(misc-unconventional-assign-operator)
    SO_SFIELD_DERIVED_HEADER(SoSFFilePathString, SbString, const SbString&);

public:
    static void initClass();
};
