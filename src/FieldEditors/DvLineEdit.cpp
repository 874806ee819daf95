#include "FieldEditors/DvLineEdit.h"

#include <QKeyEvent>

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
        setText(text);
    setCursorPosition(0);
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
