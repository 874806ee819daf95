#include "examples/time_editor/TimeEditor.h"

#include "examples/time_editor/TimeCommand.h"

#include <TvkServices.h>

#include <QDateTimeEdit>
#include <QHBoxLayout>
#include <QSignalBlocker>

namespace {

QDateTime toDateTime(const SbTime& time)
{
    return QDateTime::fromMSecsSinceEpoch(qRound64(time.getValue() * 1000.0), Qt::UTC);
}

SbTime toTime(const QDateTime& dateTime)
{
    return {static_cast<double>(dateTime.toMSecsSinceEpoch()) / 1000.0};
}

} // namespace

TimeEditor::TimeEditor() : m_sensor(&TimeEditor::fieldChanged, this)
{
    m_name = "TimeEditor";
    m_description = "Edits times as dates.";
    m_vendor = "Example";
    m_version = "1.0.0";
    m_handledType = SoSFTime::getClassTypeId();
    m_widget = new QWidget;
    m_widget->setObjectName(QStringLiteral("TimeEditor"));
    m_sensor.setDeleteCallback(&TimeEditor::fieldDied, this);
}

TimeEditor::~TimeEditor()
{
    delete m_widget;
}

void TimeEditor::createWidgets()
{
    m_edit = new QDateTimeEdit;
    m_edit->setObjectName(QStringLiteral("dateTimeEdit"));
    m_edit->setTimeSpec(Qt::UTC);
    m_edit->setDisplayFormat(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
    auto* const layout = new QHBoxLayout(m_widget);
    layout->addWidget(m_edit);
    connect(m_edit, SIGNAL(editingFinished()), SLOT(s_editingFinished()));
}

void TimeEditor::releaseWidgets()
{
    m_sensor.detach();
}

void TimeEditor::activate()
{
    TvkEditor::activate();
    SoTypedObject* const object = getEditedObject();
    if (!object || !object->isOfType(SoSFTime::getClassTypeId()))
        return;
    m_field = static_cast<SoSFTime*>(object->getField());
    m_sensor.attach(m_field);
    m_widget->setEnabled(true);
    refresh();
    m_widget->show();
}

void TimeEditor::deactivate()
{
    TvkEditor::deactivate();
    m_sensor.detach();
    m_field = nullptr;
    if (m_widget)
        m_widget->hide();
}

void TimeEditor::fieldChanged(void* editor, SoSensor*)
{
    static_cast<TimeEditor*>(editor)->refresh();
}

void TimeEditor::fieldDied(void* editor, SoSensor*)
{
    // The field is half destroyed: only let go of it.
    auto* const self = static_cast<TimeEditor*>(editor);
    self->m_field = nullptr;
    self->setEditedObject(nullptr);
    self->m_widget->setEnabled(false);
}

void TimeEditor::refresh()
{
    if (!m_field)
        return;
    const QSignalBlocker blocker(m_edit);
    m_edit->setDateTime(toDateTime(m_field->getValue()));
}

void TimeEditor::s_editingFinished()
{
    // Shown to the millisecond: a time that was only looked at keeps its finer part.
    if (!m_field || m_edit->dateTime() == toDateTime(m_field->getValue()))
        return;
    const SbTime before = m_field->getValue();
    m_field->setValue(toTime(m_edit->dateTime()));
    TvkServices::getInstance()->pushCommand(new TimeCommand(*m_field, before));
}
