#include "TvkPlugin.h"

TvkPlugin::~TvkPlugin() = default;

void TvkPlugin::load()
{
    m_loaded = true;
}

void TvkPlugin::unload()
{
    m_extensions.clear();
    m_loaded = false;
}

void TvkPlugin::addExtension(TvkExtension* extension)
{
    m_extensions.push_back(extension);
}
