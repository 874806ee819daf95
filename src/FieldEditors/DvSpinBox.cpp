#include "FieldEditors/DvSpinBox.h"

#include "FieldEditors/DvWheelGuard.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>

DvSpinBox::DvSpinBox(int minimum, int maximum, QWidget* parent) : QSpinBox(parent)
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator | QLocale::OmitGroupSeparator);
    setLocale(locale);
    setRange(minimum, maximum);
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    DvWheelGuard::install(*this);
}

void DvSpinBox::showValue(int value)
{
    const QSignalBlocker blocker(this);
    const bool isBeingTypedInto = hasFocus() && hasPendingEdit();
    const QString typed = lineEdit()->text();
    const int cursor = lineEdit()->cursorPosition();
    setValue(value);
    if (!isBeingTypedInto)
        return;
    lineEdit()->setText(typed);
    lineEdit()->setCursorPosition(cursor);
}

void DvSpinBox::takePendingEdit()
{
    const QSignalBlocker blocker(this);
    interpretText();
}

void DvSpinBox::clearPendingEdit()
{
    const QSignalBlocker blocker(this);
    setValue(value());
}

void DvSpinBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && hasPendingEdit()) {
        emit revertRequested();
        event->accept();
        return;
    }
    QSpinBox::keyPressEvent(event);
}
