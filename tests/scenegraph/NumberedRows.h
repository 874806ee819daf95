#pragma once

#include <Inventor/fields/SoMFInt32.h>

/** Fills the field with the numbers 10, 11, 12 ... */
inline void fillWithNumbers(SoMFInt32& field, int count)
{
    field.setNum(0);
    for (int row = 0; row < count; ++row)
        field.set1Value(row, 10 + row);
}
