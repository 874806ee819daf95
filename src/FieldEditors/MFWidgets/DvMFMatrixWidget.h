#pragma once

#include "FieldEditors/MFWidgets/DvTablePopupWidget.h"

/** Edits an SoMFMatrix: the texts of the matrices, and a pop-up of sixteen numbers. */
class DvMFMatrixWidget final : public DvTablePopupWidget
{
    Q_OBJECT

public:
    DvMFMatrixWidget();

    QString cellText(int row, int column) const override;
    QByteArray rowValue(int row) const override;
    /** Writes the matrix from all lines of the pop-up; column and text are not used. */
    void applyCell(int row, int column, const QString& text) override;
    void swapRows(int row1, int row2) override;

protected:
    void showRow(DvNumberLines& lines, int row) override;
};
