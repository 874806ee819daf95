#pragma once

#include "FieldEditors/DvMFieldWidget.h"

/** One column with the texts of the values, as the field writes them. */
class DvMFTextRows : public DvMFieldWidget
{
    Q_OBJECT

public:
    DvMFTextRows(const char* typeName, int valueKind, const QString& objectName);

    QString cellText(int row, int column) const override;
    void swapRows(int row1, int row2) override;

protected:
    /** Writes the text, which the field parses, into the row. */
    void writeText(int row, const QString& text);
};
