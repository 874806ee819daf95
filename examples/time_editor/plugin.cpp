// A plug-in with one more editor. The host prefers it to the line that edits any field, because its
// type is the more derived one.

#include "examples/time_editor/TimeEditor.h"

#include <TvkPlugin.h>

namespace {

class TimePlugin final : public TvkPlugin
{
public:
    TimePlugin()
    {
        m_name = "TimePlugin";
        m_description = "An editor for times.";
        m_vendor = "Example";
        m_version = "1.0.0";
    }

    void load() override
    {
        addExtension(&m_timeEditor);
        TvkPlugin::load();
    }

private:
    TimeEditor m_timeEditor;
};

TvkPlugin* s_plugin = nullptr;

} // namespace

extern "C" Q_DECL_EXPORT TvkPlugin* loadPlugin()
{
    s_plugin = new TimePlugin;
    return s_plugin;
}

extern "C" Q_DECL_EXPORT void unloadPlugin()
{
    delete s_plugin;
    s_plugin = nullptr;
}
