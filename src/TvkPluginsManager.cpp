#include "TvkPluginsManager.h"

namespace {
TvkPluginsManager* s_instance = nullptr;
}

TvkPluginsManager::~TvkPluginsManager()
{
    if (s_instance == this)
        s_instance = nullptr;
}

TvkPluginsManager* TvkPluginsManager::getInstance()
{
    return s_instance;
}

void TvkPluginsManager::setInstance(TvkPluginsManager* manager)
{
    s_instance = manager;
}
