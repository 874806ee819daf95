#pragma once

#include <Inventor/SbString.h>

#include <QString>

/**
 * Texts between Coin and Qt. Coin's strings are bytes, UTF-8 by custom; files of an older age hold
 * Latin-1.
 */
class DvFieldText
{
public:
    /** The text to show; bytes that are no UTF-8 are read as Latin-1, so nothing shows as "�". */
    static QString toQString(const SbString& text);
    /** UTF-8. */
    static SbString toSbString(const QString& text);

    /** General notation with that many significant digits, whatever the user's language. */
    static QString fromReal(double value, int significantDigits = 6);
    /** Single precision; 0 for text that does not parse. */
    static float toFloat(const QString& text);
};
