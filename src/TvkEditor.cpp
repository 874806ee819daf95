#include "TvkEditor.h"

TvkEditor::~TvkEditor() = default;

SoType TvkEditor::getHandledType()
{
    return m_handledType;
}

void TvkEditor::setEditedObject(SoTypedObject* object)
{
    m_editedObject = object ? *object : SoTypedObject();
}

SoTypedObject* TvkEditor::getEditedObject() const
{
    return m_editedObject.isNull() ? nullptr : &m_editedObject;
}

QWidget* TvkEditor::getWidget() const
{
    return m_widget;
}
