#pragma once

#include <Inventor/fields/SoField.h>
#include <Inventor/sensors/SoFieldSensor.h>

#include <functional>

/** How often the change notifies those who watch the field. */
inline int notificationsOf(SoField& field, const std::function<void()>& change)
{
    int count = 0;
    SoFieldSensor sensor([](void* data, SoSensor*) { ++*static_cast<int*>(data); }, &count);
    sensor.setPriority(0);
    sensor.attach(&field);
    change();
    return count;
}
