#include "lib/HostSceneSensor.h"

#include <Inventor/VRMLnodes/SoVRMLInline.h>
#include <Inventor/fields/SoMFNode.h>
#include <Inventor/fields/SoMFPath.h>
#include <Inventor/fields/SoSFNode.h>
#include <Inventor/fields/SoSFPath.h>
#include <Inventor/misc/SoNotification.h>
#include <Inventor/nodes/SoFile.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoWWWInline.h>

#include <algorithm>

namespace {

bool holdsNodes(const SoField& field)
{
    const SoType types[] = {SoSFNode::getClassTypeId(), SoMFNode::getClassTypeId(),
                            SoSFPath::getClassTypeId(), SoMFPath::getClassTypeId()};
    return std::any_of(std::begin(types), std::end(types),
                       [&field](SoType type) { return field.isOfType(type); });
}

/** Whether a plain value of the node may decide what its children are, as a file's name does. */
bool makesChildren(const SoBase& base)
{
    const SoType types[] = {SoGroup::getClassTypeId(), SoFile::getClassTypeId(),
                            SoWWWInline::getClassTypeId(), SoVRMLInline::getClassTypeId()};
    // Nobody knows what the nodes of an application do.
    return !base.isOfType(SoNode::getClassTypeId()) ||
           !static_cast<const SoNode&>(base).getIsBuiltIn() ||
           std::any_of(std::begin(types), std::end(types),
                       [&base](SoType type) { return base.isOfType(type); });
}

} // namespace

void HostSceneSensor::notify(SoNotList* list)
{
    const SoField* field = list->getLastField();
    const SoNotRec* record = list->getFirstRecAtNode();
    const bool isPlainValue = field && !holdsNodes(*field) && record && record->getBase() &&
                              !makesChildren(*record->getBase());
    if (!isPlainValue)
        SoNodeSensor::notify(list);
}
