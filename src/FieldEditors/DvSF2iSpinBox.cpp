#include "FieldEditors/DvSF2iSpinBox.h"

#include "FieldEditors/DvLayoutConstants.h"
#include "FieldEditors/DvWheelGuard.h"

#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>

namespace {

/** Whether a text has been typed into the box that it has not taken as its value yet. */
bool isBeingTypedInto(const QSpinBox* box)
{
    return box && box->cleanText() != QString::number(box->value());
}

} // namespace

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

QSpinBox* DvSF2iSpinBox::newSpinBox(QGridLayout& grid, int row, const QString& labelText)
{
    auto* const label = new QLabel(QStringLiteral("<p>%1</p>").arg(labelText));
    label->setObjectName(QStringLiteral("SF4flabel"));
    label->setMinimumHeight(DvLayoutConstants::value("SFVecLabelHeight"));
    grid.addWidget(label, row, 0);

    auto* const box = new QSpinBox;
    box->setObjectName(QStringLiteral("SF2SpinBox"));
    box->setMinimumHeight(DvLayoutConstants::value("SFVecLineHeight"));
    box->setLocale(QLocale::c());
    box->setRange(m_minimum, m_maximum);
    // A typed number is one edit, not one for each of its digits.
    box->setKeyboardTracking(false);
    box->setAccessibleName(labelText);
    box->setFocusPolicy(Qt::StrongFocus);
    DvWheelGuard::install(*box);
    label->setBuddy(box);
    grid.addWidget(box, row, 1);
    connect(box, SIGNAL(valueChanged(int)), this, SLOT(setCommandValue()));
    return box;
}

bool DvSF2iSpinBox::hasPendingEdit() const
{
    return std::any_of(m_boxes.begin(), m_boxes.end(), &isBeingTypedInto);
}

void DvSF2iSpinBox::clearPendingEdit()
{
    // The next refresh puts the value's own text back.
}

void DvSF2iSpinBox::showNumber(std::size_t index, double number)
{
    QSpinBox* const box = m_boxes[index];
    // Or showing a value would commit it.
    const QSignalBlocker blocker(box);
    box->setValue(static_cast<int>(number));
    m_shown[index] = number;
}

double DvSF2iSpinBox::number(std::size_t index, double component) const
{
    QSpinBox* const box = m_boxes[index];
    const QSignalBlocker blocker(box);
    box->interpretText();
    // A box that the user has not touched stands for the field's own component.
    return box->value() == static_cast<int>(m_shown[index]) ? component : box->value();
}
