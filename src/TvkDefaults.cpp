#include "TvkDefaults.h"

#include <memory>

namespace {
/** The live plug-in object; unloadPlugin() deletes it. */
TvkPlugin* s_plugin = nullptr;
} // namespace

TvkDefaults::TvkDefaults()
{
    m_name = "TvkDefaults";
    m_description = "Plug-in which loads Tavrik default extensions.";
    m_vendor = "Quelvar";
    m_version = "1.0.0";
}

TvkDefaults::~TvkDefaults() = default;

void TvkDefaults::load()
{
    // In order of registration.
    TvkExtension* const extensions[] = {
        &m_sfBoolWidget,
        &m_sfLineWidget,
        &m_sfVec3fWidget,
        &m_fieldEditorDockWin,
    };
    for (TvkExtension* extension : extensions)
        addExtension(extension);
    TvkPlugin::load();
}

/**
 * Creates the plug-in object. Kept on purpose: a second call makes a second object and forgets the
 * first; a host calls it once.
 */
extern "C" Q_DECL_EXPORT TvkPlugin* loadPlugin()
{
    s_plugin = new TvkDefaults;
    return s_plugin;
}

extern "C" Q_DECL_EXPORT void unloadPlugin()
{
    delete s_plugin;
    s_plugin = nullptr;
}
