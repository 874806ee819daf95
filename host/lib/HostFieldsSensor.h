#pragma once

#include <Inventor/sensors/SoNodeSensor.h>

#include <unordered_set>

class SoField;

/** Watches a node and remembers which of its own fields have changed since it was last asked. */
class HostFieldsSensor : public SoNodeSensor
{
public:
    HostFieldsSensor(SoSensorCB* changed, void* data) : SoNodeSensor(changed, data) {}

    using Fields = std::unordered_set<const SoField*>;
    /** For looking up only: they need not live any more. */
    Fields takeChanged();

private:
    void notify(SoNotList* list) override;

    Fields m_changed;
};
