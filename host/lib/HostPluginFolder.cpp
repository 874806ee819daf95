#include "lib/HostPluginFolder.h"

#include "lib/HostPluginsManager.h"

#include <TvkPlugin.h>

#include <QDir>
#include <QFileInfo>

HostPluginFolder::HostPluginFolder(HostPluginsManager& manager) : m_manager(manager) {}

HostPluginFolder::~HostPluginFolder() = default;

QStringList HostPluginFolder::files(const QString& directory)
{
    const QString first = QStringLiteral("TvkDefaults.so");
    const QDir folder(directory);
    QStringList names = folder.entryList({QStringLiteral("*.so")}, QDir::Files, QDir::Name);
    if (names.removeAll(first) > 0)
        names.prepend(first);
    for (QString& name : names)
        name = folder.absoluteFilePath(name);
    return names;
}

QStringList HostPluginFolder::load(const QString& directory)
{
    const QStringList libraries = files(directory);
    return libraries.isEmpty()
               ? QStringList(QObject::tr("There is no plug-in in \"%1\".").arg(directory))
               : load(libraries);
}

QStringList HostPluginFolder::load(const QStringList& files)
{
    QStringList errors;
    QStringList done;
    for (const QString& file : files) {
        const QString canonical = QFileInfo(file).canonicalFilePath();
        if (!canonical.isEmpty() && done.contains(canonical))
            continue;
        done.append(canonical);
        auto loader = std::make_unique<HostPluginLoader>();
        if (TvkPlugin* plugin = loader->load(file)) {
            m_manager.adopt(*plugin);
            m_loaders.push_back(std::move(loader));
        } else {
            errors.append(loader->errorString());
        }
    }
    return errors;
}

void HostPluginFolder::release()
{
    for (auto loader = m_loaders.rbegin(); loader != m_loaders.rend(); ++loader)
        m_manager.release(*(*loader)->plugin());
}

void HostPluginFolder::unload()
{
    while (!m_loaders.empty()) {
        m_loaders.back()->unload();
        m_loaders.pop_back();
    }
}
