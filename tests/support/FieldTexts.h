#pragma once

#include <Inventor/SbString.h>
#include <Inventor/fields/SoMField.h>

#include <QByteArray>
#include <QList>
#include <QString>

/** A field's value as its text, in one line also where the field writes several. */
inline QByteArray textOf(SoField& field)
{
    SbString text;
    field.get(text);
    return QByteArray(text.getString(), text.getLength()).simplified();
}

/** The texts of a multiple-value field's rows, byte for byte. */
inline QList<QByteArray> rowTextsOf(SoMField& field)
{
    QList<QByteArray> texts;
    for (int row = 0; row < field.getNum(); ++row) {
        SbString text;
        field.get1(row, text);
        texts << QByteArray(text.getString(), text.getLength());
    }
    return texts;
}

/** The texts of all rows, separated by blanks. */
inline QString rowsInOneLine(SoMField& field)
{
    return QString::fromUtf8(rowTextsOf(field).join(' '));
}
