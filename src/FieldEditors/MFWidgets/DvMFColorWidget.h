#pragma once

#include "FieldEditors/DvMFColorTable.h"
#include "FieldEditors/MFWidgets/DvMFVec3fWidget.h"

/** Edits an SoMFColor: three components, and the colour dialog. */
class DvMFColorWidget final : public DvMFVec3fWidget, private DvColorOwner
{
    Q_OBJECT

public:
    DvMFColorWidget();

    void swapRows(int row1, int row2) override;

protected:
    DvMFieldTable* newTable() override;
    /** Closes the colour dialog, which was for a row of that field. */
    void fieldReleased() override;
    // A colour field is no vector field, although its rows look alike.
    Numbers numbersAt(int row) const override;
    void write(int row, const Numbers& numbers) override;

private:
    void setColor(int row, const QColor& color) override;
};
