#pragma once

#include "FieldEditors/DvMFTextRows.h"

/** The fall-back editor of any multiple-value field: one column with the texts of its values. */
class DvMFDefaultFieldWidget final : public DvMFTextRows
{
    Q_OBJECT

public:
    DvMFDefaultFieldWidget();

    void applyCell(int row, int column, const QString& text) override;
};
