#include "lib/HostFieldsSensor.h"

#include <Inventor/fields/SoField.h>
#include <Inventor/misc/SoNotification.h>
#include <Inventor/nodes/SoNode.h>

#include <utility>

HostFieldsSensor::Fields HostFieldsSensor::takeChanged()
{
    return std::exchange(m_changed, {});
}

void HostFieldsSensor::notify(SoNotList* list)
{
    // A group is told of the changes of everything below it, too.
    const SoField* const field = list ? list->getLastField() : nullptr;
    if (field && field->getContainer() == getAttachedNode())
        m_changed.insert(field);
    SoNodeSensor::notify(list);
}
