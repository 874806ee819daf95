#pragma once

#include <Inventor/SbString.h>

#include <vector>

/**
 * Reads the quoted texts that string and name fields write. The writer puts a backslash before each
 * quotation mark and changes nothing else, a backslash neither; this is its exact inverse, which
 * Coin's reader is not.
 */
class SoQuotedText
{
public:
    /** FALSE, and value untouched, for a text that the writer cannot have written. */
    static bool read(const SbString& text, SbString& value);
    /** The whole text of a multiple-value field: one bare text, or a list in brackets. */
    static bool readAll(const SbString& text, std::vector<SbString>& values);
};
