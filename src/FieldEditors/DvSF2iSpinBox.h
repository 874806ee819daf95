#pragma once

#include "FieldEditors/DvSFieldWidget.h"

#include <array>

class DvSpinBox;
class QGridLayout;

/** Two spin boxes, for the vectors of two integers. Every step commits; a typed number commits on
 *  Return or when its box is left. */
class DvSF2iSpinBox : public DvSFieldWidget
{
    Q_OBJECT

public:
    DvSF2iSpinBox(int minimum, int maximum,
                  const QString& objectName = QStringLiteral("DvSF2iSpinBox"));

    bool hasPendingEdit() const override;

protected:
    void buildEditor(QHBoxLayout& editLayout) override;
    void clearPendingEdit() override;

    void showNumber(std::size_t index, double number);
    double number(std::size_t index, double component) const;
    bool isTextBeingEdited() const { return false; }

private:
    DvSpinBox* newSpinBox(QGridLayout& grid, int row, const QString& labelText);

    const int m_minimum;
    const int m_maximum;
    std::array<DvSpinBox*, 2> m_boxes = {};
    std::array<double, 2> m_shown = {};
};
