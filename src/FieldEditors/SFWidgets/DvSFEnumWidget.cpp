#include "FieldEditors/SFWidgets/DvSFEnumWidget.h"

#include "FieldEditors/DvEnumEntries.h"
#include "FieldEditors/DvFieldText.h"
#include "FieldEditors/DvWheelGuard.h"
#include "FieldEditors/SFWidgets/DvEnumBox.h"
#include "scenegraph/SoFieldText.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

DvSFEnumWidget::DvSFEnumWidget()
    : DvSFieldWidget(DvSlider::NoKind, QStringLiteral("DvSFEnumWidget"))
{
    m_handledType = SoSFEnum::getClassTypeId();
}

void DvSFEnumWidget::buildEditor(QHBoxLayout& editLayout)
{
    m_comboBox = new DvEnumBox(frame());
    m_comboBox->setObjectName(QStringLiteral("comboBox"));
    m_comboBox->setAccessibleName(tr("Value"));
    m_comboBox->setFocusPolicy(Qt::StrongFocus);
    DvWheelGuard::install(*m_comboBox);
    editLayout.addWidget(m_comboBox);
    connect(m_comboBox, SIGNAL(activated(int)), this, SLOT(setCommandValue()));
}

void DvSFEnumWidget::fieldReplaced()
{
    const QSignalBlocker blocker(m_comboBox);
    m_comboBox->clear();
    for (const DvEnumEntry& entry : enumEntries(*fieldAs<SoSFEnum>()))
        m_comboBox->addItem(entry.name);
}

void DvSFEnumWidget::fieldReleased()
{
    m_comboBox->hidePopup();
}

void DvSFEnumWidget::refresh()
{
    if (auto* const value = fieldAs<SoSFEnum>()) {
        SbString text;
        SoFieldText::get(value, text);
        const QSignalBlocker blocker(m_comboBox);
        m_comboBox->setPlaceholderText(QString::number(value->getValue()));
        m_comboBox->setCurrentIndex(m_comboBox->findText(
            DvFieldText::toQString(text), Qt::MatchFixedString | Qt::MatchCaseSensitive));
    }
    DvSFieldWidget::refresh();
}

void DvSFEnumWidget::applyChanges()
{
    auto* const value = fieldAs<SoSFEnum>();
    if (!value || m_comboBox->currentIndex() < 0)
        return;
    value->setValue(SbName(DvFieldText::toSbString(m_comboBox->currentText()).getString()));
    pushSetValue();
    // Of several names for one value the field answers with the first.
    refresh();
}
