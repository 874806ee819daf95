#include "FieldEditors/AccessButtonPrivate.h"

#include "FieldEditors/DvWheelGuard.h"

#include <QKeyEvent>
#include <QSignalBlocker>

AccessButtonPrivate::AccessButtonPrivate(int minimum, int maximum, int step, QWidget* parent,
                                         const char* name)
    : QSpinBox(parent)
{
    setObjectName(QLatin1String(name));
    setRange(minimum, maximum);
    setSingleStep(step);
    QLocale plainNumbers = QLocale::c();
    plainNumbers.setNumberOptions(QLocale::RejectGroupSeparator | QLocale::OmitGroupSeparator);
    setLocale(plainNumbers);
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    DvWheelGuard::install(*this);
}

AccessButtonPrivate::AccessButtonPrivate(QWidget* parent, const char* name)
    : AccessButtonPrivate(0, 0, 1, parent, name)
{}

void AccessButtonPrivate::setRowCount(int rows)
{
    const int first = rows > 0 ? 1 : 0;
    // The same range would be painted anew, and would drop what is being typed.
    if (minimum() == first && maximum() == rows)
        return;
    const QSignalBlocker blocker(this);
    setRange(first, rows);
}

int AccessButtonPrivate::row()
{
    interpretText();
    return value() - 1;
}

void AccessButtonPrivate::setNewValue(int value)
{
    const QSignalBlocker blocker(this);
    setValue(value + 1);
}

void AccessButtonPrivate::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QSpinBox::keyPressEvent(event);
        return;
    }
    {
        const QSignalBlocker blocker(this);
        interpretText();
    }
    emit valueChanged(value());
    event->accept();
}
