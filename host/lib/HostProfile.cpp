#include "lib/HostProfile.h"

#include "lib/HostProfileName.h"

#include <utility>

HostProfile::HostProfile(QString name, Kind kind)
    : TvkProfile(SbString()), m_kind(kind), m_fullName(std::move(name))
{
    updateShortName(1);
}

HostProfile::~HostProfile() = default;

void HostProfile::updateShortName(int number)
{
    m_name = HostProfileName::latin1(m_fullName, number).constData();
}

bool HostProfile::hasExtension(const QString& key) const
{
    return hasEverything() || contents.extensions.contains(key);
}

bool HostProfile::hasEditor(const QString& key) const
{
    return hasEverything() || !contents.withoutEditors.contains(key);
}
