#pragma once

#include <QRandomGenerator>

class SoField;

/**
 * Sets a field of a type that an editor is for to a random value: every other one any pattern of
 * bits, limits, denormal numbers, infinities and numbers that are none included; the rest ordinary.
 * Texts hold quotes, backslashes, line breaks, letters of many scripts, and bytes that are no
 * UTF-8. A name gets one of a few hundred, as names are kept for ever.
 */
void setRandomValue(SoField& field, QRandomGenerator& random);

/** One text of the kind that setRandomValue() gives to a string. */
QByteArray randomText(QRandomGenerator& random, int length);
