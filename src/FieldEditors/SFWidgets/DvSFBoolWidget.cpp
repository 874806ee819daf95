#include "FieldEditors/SFWidgets/DvSFBoolWidget.h"

#include "FieldEditors/DvLayoutConstants.h"

#include <Inventor/fields/SoSFBool.h>

#include <QCheckBox>
#include <QHBoxLayout>

DvSFBoolWidget::DvSFBoolWidget()
    : DvSFieldWidget(DvSlider::NoKind, QStringLiteral("DvSFBoolWidget"))
{
    m_handledType = SoSFBool::getClassTypeId();
}

void DvSFBoolWidget::buildEditor(QHBoxLayout& editLayout)
{
    m_box = new QCheckBox(frame());
    m_box->setObjectName(QStringLiteral("m_box"));
    m_box->setFixedSize(DvLayoutConstants::value("SFBoolWidth"),
                        DvLayoutConstants::value("SFComponentHeight"));
    m_box->setAccessibleName(tr("Value"));
    editLayout.addWidget(m_box, 1, Qt::AlignLeft | Qt::AlignVCenter);
    connect(m_box, SIGNAL(clicked()), this, SLOT(setCommandValue()));
}

void DvSFBoolWidget::refresh()
{
    if (const auto* value = fieldAs<SoSFBool>())
        m_box->setChecked(value->getValue());
    DvSFieldWidget::refresh();
}

void DvSFBoolWidget::applyChanges()
{
    auto* const value = fieldAs<SoSFBool>();
    if (!value)
        return;
    value->setValue(m_box->isChecked());
    pushSetValue();
}
