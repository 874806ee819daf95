#include "FieldEditors/DvLineEdit.h"

#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFrame>

#include <limits>

DvLineEdit::DvLineEdit(const char* objectName, QWidget* parent) : QLineEdit(parent)
{
    setObjectName(QLatin1String(objectName));
    // Qt's limit of 32767 characters would cut a longer value, and a commit would lose the rest.
    setMaxLength(std::numeric_limits<int>::max());
}

void DvLineEdit::showText(const QString& text)
{
    m_shownText = text;
    if (hasFocus() && isModified())
        return;
    // A text that stands there already is not laid out again.
    if (isModified() || text != this->text())
        replaceText(text);
    setCursorPosition(0);
}

void DvLineEdit::replaceText(const QString& text)
{
    // Qt would paint the whole line, of which the frame takes longest, at every step of a drag.
    const bool wasDisabled = testAttribute(Qt::WA_UpdatesDisabled);
    setAttribute(Qt::WA_UpdatesDisabled);
    setText(text);
    setCursorPosition(0);
    setAttribute(Qt::WA_UpdatesDisabled, wasDisabled);
    QStyleOptionFrame option;
    initStyleOption(&option);
    update(style()->subElementRect(QStyle::SE_LineEditContents, &option, this));
}

void DvLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && !showsFieldValue()) {
        emit revertRequested();
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void DvLineEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    const bool staysInWindow =
        event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason;
    if (staysInWindow && isModified() && !hasAcceptableInput())
        emit revertRequested();
}
