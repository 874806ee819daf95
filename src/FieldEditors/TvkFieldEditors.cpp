#include "FieldEditors/TvkFieldEditors.h"

#include "FieldEditors/DvEditorFrame.h"

#include <Inventor/fields/SoField.h>
#include <Inventor/sensors/SoFieldSensor.h>

TvkFieldEditors::TvkFieldEditors() : m_frame(new DvEditorFrame)
{
    m_vendor = "Quelvar";
    m_description = "Field Editor for Tavrik.";
    m_version = "1.0.0";
    m_widget = m_frame.data();
}

TvkFieldEditors::~TvkFieldEditors()
{
    deleteFrame();
}

QFrame* TvkFieldEditors::frame() const
{
    return m_frame;
}

void TvkFieldEditors::deleteFrame()
{
    if (!m_frame)
        return;
    // A focused line would report the end of its editing from its destructor.
    for (QObject* child : m_frame->findChildren<QObject*>())
        child->disconnect(this);
    delete m_frame.data();
}

void TvkFieldEditors::activate()
{
    TvkEditor::activate();
    SoTypedObject* const object = getEditedObject();
    SoField* const field = object ? object->getField() : nullptr;
    // Without its sensor the editor would not hear of the field's death; and a field of another
    // class must not be read as one of the handled type.
    if (!field || !m_sensor || !field->isOfType(m_handledType))
        return;
    setField(field);
    refresh();
    show();
}

void TvkFieldEditors::deactivate()
{
    TvkEditor::deactivate();
    if (m_sensor)
        m_sensor->detach();
    hide();
    setField(nullptr);
}

void TvkFieldEditors::hide()
{
    TvkEditor::hide();
    if (m_frame)
        m_frame->hide();
}

void TvkFieldEditors::createWidgets()
{
    hide();
    m_sensor = std::make_unique<SoFieldSensor>(
        [](void* editor, SoSensor*) { static_cast<TvkFieldEditors*>(editor)->refresh(); }, this);
    m_sensor->setDeleteCallback(
        [](void* editor, SoSensor*) { static_cast<TvkFieldEditors*>(editor)->fieldDied(); }, this);
}

void TvkFieldEditors::show()
{
    TvkEditor::show();
    if (m_frame)
        m_frame->show();
}

void TvkFieldEditors::releaseWidgets()
{
    setField(nullptr);
    m_sensor.reset();
}

void TvkFieldEditors::setField(SoField* field)
{
    if (m_frame)
        m_frame->setEnabled(field != nullptr);
    if (!m_sensor)
        return;
    m_sensor->detach();
    if (field)
        m_sensor->attach(field);
}

void TvkFieldEditors::fieldDied()
{
    m_fieldDying = true;
    setEditedObject(nullptr);
    setField(nullptr);
    m_fieldDying = false;
}
