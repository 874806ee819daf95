#pragma once

#include <Inventor/fields/SoMFString.h>

#include <QByteArray>
#include <QList>

/** Writes the strings into the field's first rows. */
inline void fillWithStrings(SoMFString& field, const QList<QByteArray>& strings)
{
    for (int row = 0; row < strings.size(); ++row)
        field.set1Value(row, strings.at(row).constData());
}

/** The field's strings themselves, not as they stand in its text. */
inline QList<QByteArray> stringsOf(const SoMFString& field)
{
    QList<QByteArray> strings;
    for (int row = 0; row < field.getNum(); ++row)
        strings << field[row].getString();
    return strings;
}
