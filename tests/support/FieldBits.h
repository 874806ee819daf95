#pragma once

#include <QByteArray>

class SoField;

/**
 * A field's value to the last bit, where its text would round or hide something: the bytes of
 * numbers and characters, of lists of real numbers too; the address of a node, a path or an engine.
 * Of a type that is not known here, the text.
 */
QByteArray bitsOf(SoField& field);
