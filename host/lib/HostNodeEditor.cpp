#include "lib/HostNodeEditor.h"

#include "lib/HostFieldList.h"

#include <Inventor/nodes/SoNode.h>

HostNodeEditor::HostNodeEditor(HostServices& services) : m_services(services)
{
    setObjectName(QStringLiteral("HostNodeEditor"));
    m_name = "Fields";
    m_description = "Lists the fields of a node.";
    m_vendor = "Quelvar";
    m_version = "1.0.0";
    m_handledType = SoNode::getClassTypeId();
}

HostNodeEditor::~HostNodeEditor()
{
    HostNodeEditor::releaseWidgets();
}

void HostNodeEditor::createWidgets()
{
    if (m_list)
        return;
    m_list = new HostFieldList(m_services);
    m_list->hide();
    m_widget = m_list;
    connect(m_list, SIGNAL(nodeGone()), SLOT(s_nodeGone()));
}

void HostNodeEditor::releaseWidgets()
{
    delete m_list.data();
}

void HostNodeEditor::activate()
{
    TvkEditor::activate();
    if (!m_list)
        return;
    m_list->setNode(editedNode());
    m_list->show();
}

void HostNodeEditor::deactivate()
{
    TvkEditor::deactivate();
    if (!m_list)
        return;
    m_list->hide();
    m_list->setNode(nullptr);
}

SoNode* HostNodeEditor::editedNode() const
{
    const SoTypedObject* const object = getEditedObject();
    if (!object || !object->isOfType(SoNode::getClassTypeId()))
        return nullptr;
    return static_cast<SoNode*>(object->getFieldContainer());
}

void HostNodeEditor::s_nodeGone()
{
    setEditedObject(nullptr);
}
