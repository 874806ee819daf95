#include "FieldEditors/DvSFTextBox.h"

#include "FieldEditors/DvFieldText.h"
#include "FieldEditors/DvLineEdit.h"

#include <QHBoxLayout>

DvSFTextBox::DvSFTextBox(const QString& objectName) : DvSFieldWidget(DvSlider::NoKind, objectName)
{}

void DvSFTextBox::buildEditor(QHBoxLayout& editLayout)
{
    m_line = new DvLineEdit("lineEdit", frame());
    m_line->setAccessibleName(tr("Value"));
    editLayout.addWidget(m_line);
    connect(m_line, SIGNAL(editingFinished()), this, SLOT(setCommandValue()));
    connect(m_line, SIGNAL(revertRequested()), this, SLOT(revertPendingEdit()));
}

bool DvSFTextBox::hasPendingEdit() const
{
    return m_line && m_line->isModified();
}

void DvSFTextBox::clearPendingEdit()
{
    m_line->setModified(false);
}

void DvSFTextBox::showText(const SbString& text)
{
    m_line->showText(DvFieldText::toQString(text));
}

bool DvSFTextBox::hasNewText() const
{
    return !m_line->showsFieldValue() && m_line->hasAcceptableInput();
}

SbString DvSFTextBox::text() const
{
    return DvFieldText::toSbString(m_line->text());
}
