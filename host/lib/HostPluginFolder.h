#pragma once

#include "TavrikHostExport.h"

#include "lib/HostPluginLoader.h"

#include <QStringList>

#include <memory>
#include <vector>

class HostPluginsManager;

/** Plug-in libraries that are loaded together and let go together, as those of a folder are. */
class TAVRIKHOST_EXPORT HostPluginFolder
{
public:
    /** The manager is not owned. */
    explicit HostPluginFolder(HostPluginsManager& manager);
    ~HostPluginFolder();
    HostPluginFolder(const HostPluginFolder&) = delete;
    HostPluginFolder& operator=(const HostPluginFolder&) = delete;

    /** The libraries in a folder, the default extensions first. */
    static QStringList files(const QString& directory);

    /** Loads what a folder holds; answers what went wrong, a line for each library. */
    QStringList load(const QString& directory);
    /** The same for single libraries; one that is named twice is loaded once. */
    QStringList load(const QStringList& files);
    /** Takes the extensions out of the host, last plug-in first. The libraries stay loaded. */
    void release();
    /** Destroys the plug-in objects; nothing of theirs may be in use any more. */
    void unload();

private:
    HostPluginsManager& m_manager;
    std::vector<std::unique_ptr<HostPluginLoader>> m_loaders;
};
