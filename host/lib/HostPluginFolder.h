#pragma once

#include "TavrikHostExport.h"

#include "lib/HostPluginLoader.h"

#include <QStringList>

#include <memory>
#include <vector>

class HostPluginsManager;

/** Every plug-in library of one folder, loaded together and let go together. */
class TAVRIKHOST_EXPORT HostPluginFolder
{
public:
    /** The manager is not owned. */
    explicit HostPluginFolder(HostPluginsManager& manager);
    ~HostPluginFolder();
    HostPluginFolder(const HostPluginFolder&) = delete;
    HostPluginFolder& operator=(const HostPluginFolder&) = delete;

    /** Loads what the folder holds, the default extensions first; answers what went wrong. */
    QStringList load(const QString& directory);
    /** Takes the extensions out of the host, last plug-in first. The libraries stay loaded. */
    void release();
    /** Destroys the plug-in objects; nothing of theirs may be in use any more. */
    void unload();

private:
    HostPluginsManager& m_manager;
    std::vector<std::unique_ptr<HostPluginLoader>> m_loaders;
};
