#include "TvkShell.h"

namespace {
TvkShell* s_instance = nullptr;
}

TvkShell::~TvkShell()
{
    if (s_instance == this)
        s_instance = nullptr;
}

TvkShell* TvkShell::getInstance()
{
    return s_instance;
}

void TvkShell::setInstance(TvkShell* shell)
{
    s_instance = shell;
}
