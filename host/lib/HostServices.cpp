#include "lib/HostServices.h"

#include <Inventor/fields/SoField.h>
#include <Inventor/lists/SoFieldList.h>
#include <Inventor/nodes/SoNode.h>

namespace {
/** Keeps a node alive for a while; a node that nobody references stays so and is not deleted. */
class NodeHold
{
public:
    explicit NodeHold(SoNode* node) : m_node(node), m_unreferenced(node && node->getRefCount() == 0)
    {
        if (m_node)
            m_node->ref();
    }
    ~NodeHold()
    {
        if (m_node && m_unreferenced)
            m_node->unrefNoDelete();
        else if (m_node)
            m_node->unref();
    }
    NodeHold(const NodeHold&) = delete;
    NodeHold& operator=(const NodeHold&) = delete;

private:
    SoNode* const m_node;
    const bool m_unreferenced;
};
} // namespace

HostServices::HostServices()
{
    m_nodeWatch.setDeleteCallback(nodeDied, this);
    setInstance(this);
}

HostServices::~HostServices() = default;

void HostServices::pushCommand(TvkCommand* command)
{
    m_undoStack.push(command);
}

void HostServices::selectNode(SoNode* node)
{
    const NodeHold hold(node);
    m_nodeWatch.detach();
    m_node = node;
    if (m_node)
        m_nodeWatch.attach(m_node);
    m_field = nullptr;
    if (m_fieldAnnounced)
        announceField();
    // A listener may have selected another node, and that has been announced then.
    if (m_node == node)
        announceNode();
}

void HostServices::selectField(SoField* field)
{
    const NodeHold hold(m_node);
    m_field = isOwnField(field) ? field : nullptr;
    announceField();
}

void HostServices::announceSelection()
{
    SoNode* const node = m_node;
    const NodeHold hold(node);
    SoField* const field = m_field;
    announceNode();
    // A listener may have selected something else, and that has been announced then.
    if (m_node == node && m_field == field)
        announceField();
}

/** Never touches the field: it may be one that a listener has kept beyond its life. */
bool HostServices::isOwnField(const SoField* field) const
{
    if (!field || !m_node)
        return false;
    SoFieldList fields;
    m_node->getFields(fields);
    return fields.find(const_cast<SoField*>(field)) >= 0;
}

void HostServices::announceNode()
{
    m_nodeAnnounced = m_node != nullptr;
    emit selectedNodeChanged(m_node);
}

void HostServices::announceField()
{
    m_fieldAnnounced = m_field != nullptr;
    emit selectedFieldChanged(m_field);
}

void HostServices::announceDeath()
{
    if (m_fieldAnnounced && !m_field)
        announceField();
    if (m_nodeAnnounced && !m_node)
        announceNode();
}

void HostServices::nodeDied(void* services, SoSensor*)
{
    auto& self = *static_cast<HostServices*>(services);
    self.m_field = nullptr;
    self.m_node = nullptr;
    QMetaObject::invokeMethod(&self, "announceDeath", Qt::QueuedConnection);
}
