#pragma once

#include <QApplication>
#include <QWheelEvent>
#include <QWidget>
#include <QtTest/qtestspontaneevent.h>
#include <QtTest>

/** Turns the mouse wheel by one notch over a widget, upwards or downwards. */
inline void turnWheel(QWidget& widget, bool up = true)
{
    const QPointF at = widget.rect().center();
    QWheelEvent event(at, widget.mapToGlobal(at.toPoint()), QPoint(), QPoint(0, up ? 120 : -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    // Only an event from outside goes on to the widgets around one that ignores it.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&widget, &event);
}
