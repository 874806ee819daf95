#pragma once

#include <TvkPlugin.h>

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

/** A plug-in for tests: hands over the extensions that it was given and writes down its calls. */
class RecordingPlugin : public TvkPlugin
{
public:
    RecordingPlugin(QString name, std::vector<TvkExtension*> extensions, QStringList& log)
        : m_logName(std::move(name)), m_own(std::move(extensions)), m_log(log)
    {}

    void load() override
    {
        m_log << m_logName + QLatin1String(" load");
        for (TvkExtension* extension : m_own)
            addExtension(extension);
        TvkPlugin::load();
    }
    void unload() override
    {
        m_log << m_logName + QLatin1String(" unload");
        TvkPlugin::unload();
    }

private:
    const QString m_logName;
    const std::vector<TvkExtension*> m_own; ///< not owned
    QStringList& m_log;
};
