#pragma once

/**
 * The margins, spacings and sizes, in pixels, that all field widgets share, by name.
 */
class DvLayoutConstants
{
public:
    struct Row
    {
        const char* name;
        int value;
    };
    static constexpr int rowCount = 48;

    /** The constant of that name; 0 for a name that the table does not have. */
    static int value(const char* name);
    /** The table itself, rowCount rows. */
    static const Row* table();
};
