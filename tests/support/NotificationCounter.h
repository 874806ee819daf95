#pragma once

#include <Inventor/sensors/SoFieldSensor.h>

#include <functional>

/** Counts the notifications of a field, one by one: its sensor is called within each change. */
class NotificationCounter
{
public:
    explicit NotificationCounter(SoField& field) : m_sensor(&NotificationCounter::notified, this)
    {
        m_sensor.setPriority(0);
        m_sensor.attach(&field);
    }
    NotificationCounter(const NotificationCounter&) = delete;
    NotificationCounter& operator=(const NotificationCounter&) = delete;

    /** How many there were since the last time that somebody asked. */
    int take()
    {
        const int taken = m_count;
        m_count = 0;
        return taken;
    }

    std::function<void()> onNotification; ///< called within each of them

private:
    static void notified(void* data, SoSensor*)
    {
        auto* const self = static_cast<NotificationCounter*>(data);
        ++self->m_count;
        if (self->onNotification)
            self->onNotification();
    }

    SoFieldSensor m_sensor;
    int m_count = 0;
};

/** How often the change notifies those who watch the field. */
inline int notificationsOf(SoField& field, const std::function<void()>& change)
{
    NotificationCounter counter(field);
    change();
    return counter.take();
}
