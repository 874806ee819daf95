#include "FieldEditors/DvWheelGuard.h"

#include <QEvent>
#include <QWidget>

void DvWheelGuard::install(QWidget& control)
{
    control.installEventFilter(new DvWheelGuard(&control));
}

bool DvWheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus())
        return false;
    event->ignore();
    return true;
}
