#include "FieldEditors/SFWidgets/DvSFLineWidget.h"

#include "FieldEditors/DvFieldText.h"
#include "FieldEditors/DvLineEdit.h"
#include "scenegraph/SoFieldText.h"
#include "scenegraph/SoFieldTextCheck.h"

#include <Inventor/fields/SoSFEngine.h>
#include <Inventor/fields/SoSFNode.h>
#include <Inventor/fields/SoSFPath.h>

#include <QHBoxLayout>
#include <QLabel>

DvSFLineWidget::DvSFLineWidget(const QString& objectName)
    : DvSFieldWidget(DvSlider::NoKind, objectName)
{}

void DvSFLineWidget::buildEditor(QHBoxLayout& editLayout)
{
    m_line = new DvLineEdit("lineEdit", frame());
    m_line->setAccessibleName(tr("Value"));
    editLayout.addWidget(m_line);
    connectLine();
}

void DvSFLineWidget::connectLine()
{
    connect(m_line, SIGNAL(returnPressed()), this, SLOT(applyChanges()));
    connect(m_line, SIGNAL(editingFinished()), this, SLOT(setFocusLeaveEvent()));
    connect(m_line, SIGNAL(textChanged(const QString&)), this, SLOT(applyChanges(QString)));
    connect(m_line, SIGNAL(cursorPositionChanged(int, int)), this,
            SLOT(setCursorPosition(int, int)));
    connect(m_line, SIGNAL(revertRequested()), this, SLOT(cancelTyping()));
}

void DvSFLineWidget::fieldReplaced()
{
    // The label names what the editor is for; which of the many types this one is, its tool tip.
    const QString type = QLatin1String(field()->getTypeId().getName().getString());
    label()->setToolTip(type);
    m_line->setToolTip(type);
}

bool DvSFLineWidget::holdsObject() const
{
    const SoType type = field()->getTypeId();
    return type.isDerivedFrom(SoSFNode::getClassTypeId()) ||
           type.isDerivedFrom(SoSFPath::getClassTypeId()) ||
           type.isDerivedFrom(SoSFEngine::getClassTypeId());
}

void DvSFLineWidget::refresh()
{
    if (field() && !(m_line->hasFocus() && m_line->isModified())) {
        SbString text;
        SoFieldText::get(field(), text);
        const int cursor = m_line->hasFocus() ? m_cursorPosition : 0;
        m_line->showText(DvFieldText::toQString(text));
        m_line->setCursorPosition(cursor);
        markAccepted(true);
    }
    DvSFieldWidget::refresh();
}

bool DvSFLineWidget::hasPendingEdit() const
{
    return m_line && m_line->isModified();
}

void DvSFLineWidget::clearPendingEdit()
{
    m_line->setModified(false);
    m_appliedWhileTyping = false;
}

void DvSFLineWidget::setCursorPosition(int, int to)
{
    m_cursorPosition = to;
}

void DvSFLineWidget::applyChanges(const QString& text)
{
    if (!field() || !m_line->isModified())
        return;
    const bool accepted = SoFieldTextCheck::accepts(*field(), DvFieldText::toSbString(text));
    markAccepted(accepted);
    if (!accepted || holdsObject())
        return;
    if (!m_appliedWhileTyping)
        SoFieldText::get(field(), m_textBeforeTyping);
    m_appliedWhileTyping = true;
    write(text);
}

void DvSFLineWidget::applyChanges()
{
    if (!field() || m_line->showsFieldValue() ||
        (holdsObject() && m_line->text() == m_line->shownText()))
        return;
    const bool accepted =
        SoFieldTextCheck::accepts(*field(), DvFieldText::toSbString(m_line->text()));
    markAccepted(accepted);
    if (!accepted && !m_appliedWhileTyping)
        return;
    if (accepted) {
        clearPendingEdit();
        write(m_line->text());
    }
    // Of a text that was complete once and is not now, the field holds the last complete state.
    m_appliedWhileTyping = false;
    pushSetValue();
}

void DvSFLineWidget::write(const QString& text)
{
    SoFieldText::set(field(), DvFieldText::toSbString(text));
}

void DvSFLineWidget::cancelTyping()
{
    if (field() && m_appliedWhileTyping)
        SoFieldText::set(field(), m_textBeforeTyping);
    revertPendingEdit();
}

void DvSFLineWidget::markAccepted(bool accepted)
{
    QPalette palette;
    if (!accepted)
        palette.setColor(QPalette::Text, QColor(208, 32, 32));
    m_line->setPalette(palette);
    if (field())
        m_line->setToolTip(accepted ? label()->toolTip()
                                    : tr("Not a value of type %1").arg(label()->toolTip()));
}
