#pragma once

#include <Inventor/sensors/SoNodeSensor.h>

/**
 * A node sensor that is not woken by the changes of plain values, which are nearly all changes of a
 * running scene and cannot change its structure.
 */
class HostSceneSensor : public SoNodeSensor
{
public:
    using SoNodeSensor::SoNodeSensor;

    void notify(SoNotList* list) override;
};
