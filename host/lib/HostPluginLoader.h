#pragma once

#include "TavrikHostExport.h"

#include <QString>

class TvkPlugin;

/**
 * Opens one plug-in library and asks it for its plug-in object. A library once opened stays in the
 * process: Coin and Qt keep pointers into it.
 */
class TAVRIKHOST_EXPORT HostPluginLoader
{
public:
    HostPluginLoader() = default;
    /** Unloads. */
    ~HostPluginLoader();
    HostPluginLoader(const HostPluginLoader&) = delete;
    HostPluginLoader& operator=(const HostPluginLoader&) = delete;

    /**
     * Opens the library and calls its loadPlugin(); wants QApplication and SoDB up. While it is
     * loaded, the same path answers the same object, without calling that again, and another path
     * is refused. The result stays the library's own; null on failure, and errorString() says why.
     */
    TvkPlugin* load(const QString& path);
    /** Calls the library's unloadPlugin(), which destroys the plug-in object. Twice does no harm.
     */
    void unload();

    TvkPlugin* plugin() const { return m_plugin; }
    QString errorString() const { return m_error; }

    /** Where the plug-ins stand: TAVRIK_PLUGIN_PATH, else beside the libraries of this build or
     *  installation. */
    static QString pluginDirectory();

private:
    bool openLibrary();
    void askForPlugin();
    void closeLibrary();

    void* m_library = nullptr;
    void (*m_unloadPlugin)() = nullptr;
    QString m_path;
    TvkPlugin* m_plugin = nullptr; ///< owned by the library
    QString m_error;
};
