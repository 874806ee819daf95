#include "tests/support/RecordingExtension.h"

#include "tests/support/RecordingLog.h"

RecordingExtension::RecordingExtension(const char* name, QStringList& log) : m_log(log)
{
    m_name = name;
}

void RecordingExtension::activate()
{
    TvkExtension::activate();
    noteCall(m_log, *this, "activate");
}

void RecordingExtension::deactivate()
{
    TvkExtension::deactivate();
    noteCall(m_log, *this, "deactivate");
}

void RecordingExtension::hide()
{
    TvkExtension::hide();
    noteCall(m_log, *this, "hide");
}

void RecordingExtension::createWidgets()
{
    noteCall(m_log, *this, "createWidgets");
}

void RecordingExtension::show()
{
    TvkExtension::show();
    noteCall(m_log, *this, "show");
}

void RecordingExtension::releaseWidgets()
{
    noteCall(m_log, *this, "releaseWidgets");
}
