#pragma once

class SoField;

/**
 * The range that a numeric editor's slider starts with, by node and field name.
 */
class DvNumericRanges
{
public:
    struct Range
    {
        double minimum = 0.0;
        double maximum = 0.0;
        char kind = 'd';      ///< 'f' single precision, 'd' double precision, 'i' integer
        bool bounded = false; ///< strict; else it grows to take in any value entered or found
    };
    static constexpr int rowCount = 7;

    /**
     * The row that a field of real numbers starts with. Kept on purpose: every field of a
     * complexity, a material or a directional light, whatever its name, gets the one row of the
     * complexity's value; every other field the default node's row of that name.
     */
    static const Range& forReal(const SoField& field, const char* defaultField);
    /** The row that every field of integers starts with. */
    static const Range& forIntegers();

    /** The row of a node and field name; null when the table has none. */
    static const Range* find(const char* node, const char* field);
};
