#include "FieldEditors/DvSF2iSpinBox.h"

#include "FieldEditors/DvLayoutConstants.h"
#include "FieldEditors/DvSpinBox.h"

#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace {
constexpr int s_leastWidth = 3; ///< in heights of the font
}

DvSF2iSpinBox::DvSF2iSpinBox(int minimum, int maximum, const QString& objectName)
    : DvSFieldWidget(DvSlider::NoKind, objectName), m_minimum(minimum), m_maximum(maximum)
{}

void DvSF2iSpinBox::buildEditor(QHBoxLayout& editLayout)
{
    auto* const box = new QWidget(frame());
    box->setObjectName(QStringLiteral("SF2Box"));
    auto* const grid = new QGridLayout(box);
    grid->setObjectName(QStringLiteral("SF2BoxLayout"));
    const int margin = DvLayoutConstants::value("SF2BoxHMargin");
    grid->setContentsMargins(margin, margin, margin, margin);
    grid->setVerticalSpacing(DvLayoutConstants::value("SF2BoxVSpacing"));
    grid->setHorizontalSpacing(DvLayoutConstants::value("SF2BoxHSpacing"));
    grid->setColumnStretch(1, 1);
    m_boxes[0] = newSpinBox(*grid, 0, QStringLiteral("x"));
    m_boxes[1] = newSpinBox(*grid, 1, QStringLiteral("y"));
    editLayout.addWidget(box);
}

DvSpinBox* DvSF2iSpinBox::newSpinBox(QGridLayout& grid, int row, const QString& labelText)
{
    auto* const label = new QLabel(QStringLiteral("<p>%1</p>").arg(labelText));
    label->setObjectName(QStringLiteral("SF4flabel"));
    label->setMinimumHeight(DvLayoutConstants::value("SFVecLabelHeight"));
    grid.addWidget(label, row, 0);

    auto* const box = new DvSpinBox(m_minimum, m_maximum, frame());
    box->setObjectName(QStringLiteral("SF2SpinBox"));
    box->setMinimumHeight(DvLayoutConstants::value("SFVecLineHeight"));
    // Its own least width has room for the longest number; a narrow dock has not.
    box->setMinimumWidth(box->fontMetrics().height() * s_leastWidth);
    box->setAccessibleName(labelText);
    label->setBuddy(box);
    grid.addWidget(box, row, 1);
    grid.setRowMinimumHeight(row, box->sizeHint().height());
    connect(box, SIGNAL(valueChanged(int)), this, SLOT(setCommandValue()));
    connect(box, SIGNAL(revertRequested()), this, SLOT(revertPendingEdit()));
    return box;
}

bool DvSF2iSpinBox::hasPendingEdit() const
{
    return std::any_of(m_boxes.begin(), m_boxes.end(),
                       [](const DvSpinBox* box) { return box && box->hasPendingEdit(); });
}

void DvSF2iSpinBox::clearPendingEdit()
{
    for (DvSpinBox* box : m_boxes)
        box->clearPendingEdit();
}

void DvSF2iSpinBox::showNumber(std::size_t index, double number)
{
    m_boxes[index]->showValue(static_cast<int>(number));
    m_shown[index] = number;
}

double DvSF2iSpinBox::number(std::size_t index, double component) const
{
    DvSpinBox* const box = m_boxes[index];
    box->takePendingEdit();
    // A box that the user has not touched stands for the field's own component.
    return box->value() == static_cast<int>(m_shown[index]) ? component : box->value();
}
