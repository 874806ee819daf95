#pragma once

#include <QString>

#include <optional>

/** Integers as texts in the bases that Coin's files use: 10, 8 after a "0", 16 after a "0x". */
class DvIntegerText
{
public:
    /** The base that a text's beginning announces; 10 where it announces none. */
    static int baseOf(const QString& text);
    /** The text without the beginning that announces that base. */
    static QString withoutPrefix(const QString& text, int base);
    /**
     * The number that a text stands for in that base, with or without its prefix; none where it
     * stands for none. One too large for the type is the type's largest, or smallest.
     */
    static std::optional<qint64> parse(const QString& text, int base);
    /** In that base, without a prefix; a sign stands before the digits in every base. */
    static QString format(qint64 value, int base);
};
