#include "lib/HostPluginFolder.h"

#include "lib/HostPluginsManager.h"

#include <TvkPlugin.h>

#include <QDir>

namespace {

QStringList libraries(const QDir& directory)
{
    const QString first = QStringLiteral("TvkDefaults.so");
    QStringList names = directory.entryList({QStringLiteral("*.so")}, QDir::Files, QDir::Name);
    if (names.removeAll(first) > 0)
        names.prepend(first);
    return names;
}

} // namespace

HostPluginFolder::HostPluginFolder(HostPluginsManager& manager) : m_manager(manager) {}

HostPluginFolder::~HostPluginFolder() = default;

QStringList HostPluginFolder::load(const QString& directory)
{
    const QDir folder(directory);
    const QStringList names = libraries(folder);
    QStringList errors;
    if (names.isEmpty())
        errors.append(QObject::tr("There is no plug-in in \"%1\".").arg(directory));
    for (const QString& name : names) {
        auto loader = std::make_unique<HostPluginLoader>();
        if (TvkPlugin* plugin = loader->load(folder.absoluteFilePath(name))) {
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
