#include "lib/HostSensorPump.h"

#include <Inventor/SbTime.h>
#include <Inventor/SoDB.h>
#include <Inventor/sensors/SoSensorManager.h>

#include <QScopedValueRollback>

namespace {
// Milliseconds. An edit shows within one picture; an idle program costs next to nothing.
constexpr int busyInterval = 10;
constexpr int idleInterval = 25;

bool isWorkPending()
{
    SoSensorManager& manager = *SoDB::getSensorManager();
    SbTime due;
    return manager.isDelaySensorPending() ||
           (manager.isTimerSensorPending(due) &&
            due <= SbTime::getTimeOfDay() + SbTime(idleInterval / 1000.0));
}
} // namespace

HostSensorPump::HostSensorPump(QObject* parent) : QObject(parent), m_timer(this)
{
    m_timer.setInterval(idleInterval);
    connect(&m_timer, SIGNAL(timeout()), SLOT(pump()));
}

void HostSensorPump::start()
{
    m_timer.start();
}

void HostSensorPump::stop()
{
    m_timer.stop();
}

void HostSensorPump::pump()
{
    // A sensor callback may open a dialog, whose event loop comes here again; Coin's queues may
    // not be run from inside themselves.
    if (m_pumping)
        return;
    const QScopedValueRollback<bool> pumping(m_pumping, true);
    SoSensorManager& manager = *SoDB::getSensorManager();
    manager.processTimerQueue();
    manager.processDelayQueue(TRUE);
    const int interval = isWorkPending() ? busyInterval : idleInterval;
    if (m_timer.interval() != interval)
        m_timer.setInterval(interval);
}
