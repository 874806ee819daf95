#include "TvkServices.h"

namespace {
TvkServices* s_instance = nullptr;
}

TvkServices::~TvkServices()
{
    if (s_instance == this)
        s_instance = nullptr;
}

TvkServices* TvkServices::getInstance()
{
    return s_instance;
}

void TvkServices::setInstance(TvkServices* services)
{
    s_instance = services;
}
