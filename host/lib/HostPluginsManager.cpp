#include "lib/HostPluginsManager.h"

#include "lib/HostProfileStore.h"

#include <QScopedValueRollback>

HostPluginsManager::HostPluginsManager() : m_active(&m_profiles.defaultProfile())
{
    setInstance(this);
}

HostPluginsManager::~HostPluginsManager()
{
    while (TvkPlugin* const plugin = m_driver.lastPlugin())
        release(*plugin);
}

std::vector<TvkProfile*> HostPluginsManager::getProfilesList() const
{
    m_driver.noteListing();
    std::vector<TvkProfile*> list;
    for (const auto& profile : m_profiles.all())
        list.push_back(profile.get());
    return list;
}

void HostPluginsManager::setActiveProfile(TvkProfile* profile)
{
    HostProfile* const chosen = m_profiles.find(profile);
    if (chosen && chosen != m_active)
        apply(*chosen, false);
}

void HostPluginsManager::readProfiles()
{
    if (m_profiles.all().size() > 1)
        return;
    HostProfile& active = HostProfileStore::read(m_profiles);
    m_driver.leave(active, true);
    m_active = &active;
    m_driver.enter(active);
}

void HostPluginsManager::chooseProfile(HostProfile& profile)
{
    apply(profile, true);
}

void HostPluginsManager::createProfile(const QString& name, const HostProfileContents& contents)
{
    apply(m_profiles.add(name, contents), true);
}

void HostPluginsManager::changeProfile(HostProfile& profile, const QString& name,
                                       const HostProfileContents& contents)
{
    m_profiles.rename(profile, name);
    profile.contents = contents;
    apply(*m_active, true);
}

void HostPluginsManager::removeProfile(HostProfile& profile)
{
    // It must live while it is being left.
    const std::unique_ptr<HostProfile> removed = m_profiles.take(profile);
    if (removed)
        apply(removed.get() == m_active ? m_profiles.defaultProfile() : *m_active, true);
}

void HostPluginsManager::apply(HostProfile& next, bool listingsToo)
{
    if (m_applying)
        return;
    const QScopedValueRollback<bool> applying(m_applying, true);
    emit aboutToChange();
    m_driver.leave(next, listingsToo);
    m_active = &next;
    const bool untold = m_driver.enter(next);
    emit changed();
    if (untold)
        emit selectionWanted();
}
