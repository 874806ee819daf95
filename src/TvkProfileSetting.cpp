#include "TvkProfileSetting.h"

void TvkProfileSetting::control(TvkExtension* extension, TvkProfileSetting* setting)
{
    m_controlled[extension] = setting;
}

void TvkProfileSetting::release(TvkExtension* extension)
{
    m_controlled.erase(extension);
}
