#pragma once

class SoField;

/** Sets a field back to what a fresh instance of its container's type has. */
class DvDefaultValue
{
public:
    /**
     * Writes the default's text into the field, then hands a TvkFieldSetDefaultCommand to the host.
     * Nothing happens where there is no default to be found: the field stands alone, its
     * container's type cannot be instantiated, or the field belongs to that one instance only.
     */
    static void restore(SoField& field);
};
