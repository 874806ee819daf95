#pragma once

#include <Inventor/fields/SoMFInt32.h>

#include <QStringList>

/** Fills the field with the numbers 10, 11, 12 ... */
inline void fillWithNumbers(SoMFInt32& field, int count)
{
    field.setNum(0);
    for (int row = 0; row < count; ++row)
        field.set1Value(row, 10 + row);
}

/** The texts of all rows, separated by blanks. */
inline QString textsOf(SoMField& field)
{
    QStringList texts;
    for (int row = 0; row < field.getNum(); ++row) {
        SbString text;
        field.get1(row, text);
        texts << QString::fromUtf8(text.getString());
    }
    return texts.join(' ');
}
