#include "tests/host/TestPlugin.h"

#include <TvkPlugin.h>

#include <memory>
#include <stdexcept>

namespace {
TestPluginState s_state;
std::unique_ptr<TvkPlugin> s_plugin;

class TestPlugin : public TvkPlugin
{
public:
    TestPlugin() { m_name = "TestPlugin"; }
};
} // namespace

extern "C" {

Q_DECL_EXPORT TvkPlugin* loadPlugin()
{
    ++s_state.loads;
    if (s_state.fail)
        throw std::runtime_error("no memory for it");
    if (s_state.failWithoutWords)
        throw s_state.loads;
    if (!s_state.answerNull)
        s_plugin = std::make_unique<TestPlugin>();
    return s_plugin.get();
}

Q_DECL_EXPORT void unloadPlugin()
{
    ++s_state.unloads;
    s_plugin.reset();
}

Q_DECL_EXPORT TestPluginState* testPluginState()
{
    return &s_state;
}
}
