#include "TvkExtension.h"

TvkExtension::~TvkExtension() = default;

void TvkExtension::activate()
{
    m_active = true;
}

void TvkExtension::deactivate()
{
    m_active = false;
}

void TvkExtension::hide()
{
    m_shown = false;
}

void TvkExtension::show()
{
    m_shown = true;
}
