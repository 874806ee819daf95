#pragma once

#include "FieldEditors/DvMFTextRows.h"

/** Edits an SoMFString: one column with the strings as they are, without quotes. */
class DvMFStringWidget final : public DvMFTextRows
{
    Q_OBJECT

public:
    DvMFStringWidget();

    QString cellText(int row, int column) const override;
    QByteArray rowValue(int row) const override;
    void applyCell(int row, int column, const QString& text) override;
    /** As a command, unlike the editors of numbers. */
    void swapRows(int row1, int row2) override;
};
