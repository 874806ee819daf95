#include "lib/HostPluginLoader.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <dlfcn.h>

#include <exception>

namespace {
QString text(const char* source)
{
    return QCoreApplication::translate("HostPluginLoader", source);
}

/** What dlopen() or dlsym() last complained about. */
QString systemError()
{
    const char* error = dlerror();
    return error ? QString::fromLocal8Bit(error) : QString();
}

template <class Function>
Function* symbol(void* library, const char* name)
{
    // What dlsym() answers is a function only by a cast like this.
    return reinterpret_cast<Function*>(dlsym(library, name)); // NOLINT(*-reinterpret-cast)
}

/** Anything of this library: its address tells where the library's file is. */
const char anchor = 0;
} // namespace

HostPluginLoader::~HostPluginLoader()
{
    unload();
}

TvkPlugin* HostPluginLoader::load(const QString& path)
{
    m_error.clear();
    const QFileInfo file(path);
    if (m_plugin) {
        if (file.canonicalFilePath() == m_path)
            return m_plugin;
        m_error = text("%1 cannot be loaded: %2 is").arg(path, m_path);
        return nullptr;
    }
    if (!file.isFile()) {
        m_error = text("There is no plug-in %1").arg(path);
        return nullptr;
    }
    m_path = file.canonicalFilePath();
    if (openLibrary())
        askForPlugin();
    if (!m_plugin)
        closeLibrary();
    return m_plugin;
}

bool HostPluginLoader::openLibrary()
{
    m_library =
        dlopen(QFile::encodeName(m_path).constData(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
    if (!m_library)
        m_error = text("%1 cannot be opened: %2").arg(m_path, systemError());
    return m_library != nullptr;
}

void HostPluginLoader::askForPlugin()
{
    const auto loadPlugin = symbol<TvkPlugin*()>(m_library, "loadPlugin");
    m_unloadPlugin = symbol<void()>(m_library, "unloadPlugin");
    if (!loadPlugin || !m_unloadPlugin) {
        const char* missing = loadPlugin ? "unloadPlugin" : "loadPlugin";
        m_error =
            text("%1 is no plug-in: it has no function %2").arg(m_path, QLatin1String(missing));
        return;
    }
    try {
        m_plugin = loadPlugin();
        if (!m_plugin)
            m_error = text("%1 made no plug-in").arg(m_path);
    } catch (const std::exception& failure) {
        m_error = text("%1 failed: %2").arg(m_path, QString::fromLocal8Bit(failure.what()));
    } catch (...) {
        m_error = text("%1 failed: it does not say why").arg(m_path);
    }
}

void HostPluginLoader::unload()
{
    if (!m_plugin)
        return;
    m_plugin = nullptr;
    m_unloadPlugin();
    closeLibrary();
}

void HostPluginLoader::closeLibrary()
{
    m_unloadPlugin = nullptr;
    if (m_library)
        dlclose(m_library);
    m_library = nullptr;
}

QString HostPluginLoader::pluginDirectory()
{
    const QByteArray chosen = qgetenv("TAVRIK_PLUGIN_PATH");
    if (!chosen.isEmpty())
        return QFile::decodeName(chosen);
    Dl_info library;
    if (dladdr(&anchor, &library) == 0)
        return {};
    const QFileInfo file(QFile::decodeName(library.dli_fname));
    return QDir(file.absolutePath()).filePath(QStringLiteral("tavrik/plugins"));
}
