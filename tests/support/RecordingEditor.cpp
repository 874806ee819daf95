#include "tests/support/RecordingEditor.h"

#include "tests/support/RecordingLog.h"

#include <Inventor/SbName.h>

#include <QFrame>

RecordingEditor::RecordingEditor(const char* name, SoType handledType, QStringList& log)
    : m_log(log)
{
    m_name = name;
    m_handledType = handledType;
    m_widget = new QFrame;
}

RecordingEditor::~RecordingEditor()
{
    delete m_widget;
}

void RecordingEditor::activate()
{
    TvkEditor::activate();
    noteCall(m_log, *this, "activate");
}

void RecordingEditor::deactivate()
{
    TvkEditor::deactivate();
    noteCall(m_log, *this, "deactivate");
}

void RecordingEditor::createWidgets()
{
    noteCall(m_log, *this, "createWidgets");
}

void RecordingEditor::releaseWidgets()
{
    noteCall(m_log, *this, "releaseWidgets");
}

void RecordingEditor::setEditedObject(SoTypedObject* object)
{
    TvkEditor::setEditedObject(object);
    const SoTypedObject* edited = getEditedObject();
    const QByteArray type = edited ? edited->getTypeId().getName().getString() : "null";
    noteCall(m_log, *this, QByteArray("setEditedObject ") + type);
}
