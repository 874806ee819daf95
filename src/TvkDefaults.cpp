#include "TvkDefaults.h"

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
    // In order of registration. Kept on purpose: the file path editor stands among the
    // multiple-value ones, apart from its place in the order of construction.
    TvkExtension* const extensions[] = {
        &m_profileSelector,  &m_console,
        &m_mfColorWidget,    &m_mfDefaultFieldWidget,
        &m_mfDoubleWidget,   &m_sfFilePathStringWidget,
        &m_mfFloatWidget,    &m_mfInt32Widget,
        &m_mfMatrixWidget,   &m_mfPlaneWidget,
        &m_mfRotationWidget, &m_mfShortWidget,
        &m_mfStringWidget,   &m_mfUInt32Widget,
        &m_mfUShortWidget,   &m_mfVec2fWidget,
        &m_mfVec2i32Widget,  &m_mfVec2sWidget,
        &m_mfVec3fWidget,    &m_mfVec4fWidget,
        &m_sfBitMaskWidget,  &m_sfBoolWidget,
        &m_sfBox3sWidget,    &m_sfColorWidget,
        &m_sfEnumWidget,     &m_sfDoubleWidget,
        &m_sfFloatWidget,    &m_sfImageWidget,
        &m_sfInt32Widget,    &m_sfLineWidget,
        &m_sfMatrixWidget,   &m_sfNameWidget,
        &m_sfPlaneWidget,    &m_sfRotationWidget,
        &m_sfShortWidget,    &m_sfStringWidget,
        &m_sfUInt32Widget,   &m_sfUShortWidget,
        &m_sfVec2fWidget,    &m_sfVec2i32Widget,
        &m_sfVec2sWidget,    &m_sfVec3fWidget,
        &m_sfVec4fWidget,    &m_fieldEditorDockWin,
        &m_nodeEditor,
    };
    static_assert(sizeof(extensions) / sizeof(extensions[0]) == 45);
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
