#include "FieldEditors/SFWidgets/DvSFBitMaskWidget.h"

#include "FieldEditors/DvEnumEntries.h"
#include "FieldEditors/DvLayoutConstants.h"

#include <Inventor/fields/SoSFBitMask.h>

#include <QCheckBox>
#include <QHBoxLayout>

#include <algorithm>

namespace {

bool holds(int mask, int bits)
{
    return (mask & bits) == bits;
}

} // namespace

DvSFBitMaskWidget::DvSFBitMaskWidget()
    : DvSFieldWidget(DvSlider::NoKind, QStringLiteral("DvSFBitMaskWidget"))
{
    m_handledType = SoSFBitMask::getClassTypeId();
}

void DvSFBitMaskWidget::buildEditor(QHBoxLayout& editLayout)
{
    m_boxLayout = new QVBoxLayout;
    m_boxLayout->setSpacing(DvLayoutConstants::value("SFEditionAreaLaySpacing"));
    editLayout.addLayout(m_boxLayout);
}

void DvSFBitMaskWidget::fieldReplaced()
{
    clearBoxes();
    for (const DvEnumEntry& entry : enumEntries(*fieldAs<SoSFBitMask>()))
        addBox(entry.name, entry.value);
}

void DvSFBitMaskWidget::clearBoxes()
{
    for (const Bit& bit : m_bits) {
        bit.box->disconnect(this);
        m_boxLayout->removeWidget(bit.box);
        bit.box->hide();
        // Later: the box may be the one that is being clicked.
        bit.box->deleteLater();
    }
    m_bits.clear();
}

void DvSFBitMaskWidget::addBox(const QString& name, int value)
{
    auto* const box = new QCheckBox(QString(name).replace(QLatin1Char('&'), QLatin1String("&&")));
    box->setObjectName(name);
    box->setAccessibleName(name);
    m_boxLayout->addWidget(box);
    box->show();
    m_bits.push_back({box, value});
    connect(box, SIGNAL(clicked()), this, SLOT(setBitMaskValue()));
}

void DvSFBitMaskWidget::refresh()
{
    if (const auto* mask = fieldAs<SoSFBitMask>()) {
        // A name without bits stands for "none of the others".
        const int value = mask->getValue();
        const bool isNone = (value & named()) == 0;
        for (const Bit& bit : m_bits)
            bit.box->setChecked(bit.value == 0 ? isNone : holds(value, bit.value));
    }
    DvSFieldWidget::refresh();
}

void DvSFBitMaskWidget::setBitMaskValue()
{
    const auto clicked = std::find_if(m_bits.begin(), m_bits.end(),
                                      [this](const Bit& bit) { return bit.box == sender(); });
    if (clicked != m_bits.end())
        takeAlong(*clicked);
    applyChanges();
}

void DvSFBitMaskWidget::takeAlong(const Bit& clicked)
{
    const bool on = clicked.box->isChecked();
    m_clickedBits = clicked.value == 0 && on ? named() : clicked.value;
    for (const Bit& bit : m_bits) {
        const bool isMember = bit.value != 0 && holds(clicked.value, bit.value);
        const bool contains = (bit.value & clicked.value) != 0;
        // Unticking takes along every name that would bring one of its bits back.
        if (on ? isMember : isMember || contains)
            bit.box->setChecked(on);
        if (on && (clicked.value == 0) != (bit.value == 0))
            bit.box->setChecked(false);
    }
}

int DvSFBitMaskWidget::named() const
{
    int value = 0;
    for (const Bit& bit : m_bits)
        value |= bit.value;
    return value;
}

int DvSFBitMaskWidget::combined() const
{
    int value = 0;
    for (auto bit = m_bits.rbegin(); bit != m_bits.rend(); ++bit) {
        if (bit->box->isChecked())
            value |= bit->value;
    }
    return value;
}

void DvSFBitMaskWidget::applyChanges()
{
    auto* const mask = fieldAs<SoSFBitMask>();
    if (!mask)
        return;
    // Bits that the click is not about stay as they are, with a box of their own or without.
    mask->setValue((mask->getValue() & ~m_clickedBits) | combined());
    m_clickedBits = 0;
    pushSetValue();
    refresh();
}
