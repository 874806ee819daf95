#include "lib/HostDefaults.h"

HostDefaults::HostDefaults(HostServices& services) : m_nodeEditor(services)
{
    m_name = "HostDefaults";
    m_description = "What the host itself contributes.";
    m_vendor = "Quelvar";
    m_version = "1.0.0";
}

HostDefaults::~HostDefaults() = default;

void HostDefaults::load()
{
    addExtension(&m_nodeEditor);
    TvkPlugin::load();
}
