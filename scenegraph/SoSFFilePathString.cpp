#include "scenegraph/SoSFFilePathString.h"

#include <Inventor/SoInput.h>
#include <Inventor/SoOutput.h>

SO_SFIELD_DERIVED_SOURCE(SoSFFilePathString, SbString, const SbString&)

void SoSFFilePathString::initClass()
{
    // SO_SFIELD_INIT_CLASS would register the name of the class; Coin's own types, and so scene
    // files, go without the "So".
    if (classTypeId.isBad())
        PRIVATE_FIELD_INIT_CLASS(SoSFFilePathString, "SFFilePathString", inherited,
                                 &SoSFFilePathString::createInstance);
}

SbBool SoSFFilePathString::readValue(SoInput* in)
{
    return in->read(value);
}

void SoSFFilePathString::writeValue(SoOutput* out) const
{
    // As an SbString: quoted and escaped in a text file, as it is in a binary one.
    out->write(value);
}
