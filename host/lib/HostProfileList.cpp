#include "lib/HostProfileList.h"

#include "lib/HostProfileName.h"

#include <algorithm>

HostProfileList::HostProfileList()
{
    m_profiles.push_back(
        std::make_unique<HostProfile>(QStringLiteral("Default"), HostProfile::Everything));
}

HostProfileList::~HostProfileList() = default;

HostProfile* HostProfileList::find(const QString& name) const
{
    for (const auto& profile : m_profiles)
        if (profile->name().compare(name, Qt::CaseInsensitive) == 0)
            return profile.get();
    return nullptr;
}

HostProfile* HostProfileList::find(const TvkProfile* profile) const
{
    for (const auto& own : m_profiles)
        if (own.get() == profile)
            return own.get();
    return nullptr;
}

QString HostProfileList::complaint(const QString& name, const HostProfile* meantFor) const
{
    const QString tidy = HostProfileName::tidy(name);
    if (tidy.isEmpty())
        return tr("A profile needs a name.");
    const HostProfile* const other = find(tidy);
    if (other && other != meantFor)
        return tr("There is a profile \"%1\" already.").arg(other->name());
    return {};
}

QString HostProfileList::freeName(const QString& name) const
{
    QString free = name;
    for (int number = 2; find(free); ++number)
        free = name + QLatin1Char(' ') + QString::number(number);
    return free;
}

HostProfile& HostProfileList::add(const QString& name, const HostProfileContents& contents)
{
    m_profiles.push_back(
        std::make_unique<HostProfile>(HostProfileName::tidy(name), HostProfile::Selected));
    m_profiles.back()->contents = contents;
    updateShortNames();
    return *m_profiles.back();
}

void HostProfileList::rename(HostProfile& profile, const QString& name)
{
    profile.setName(HostProfileName::tidy(name));
    updateShortNames();
}

std::unique_ptr<HostProfile> HostProfileList::take(HostProfile& profile)
{
    const auto found = std::find_if(m_profiles.begin() + 1, m_profiles.end(),
                                    [&](const auto& own) { return own.get() == &profile; });
    if (found == m_profiles.end())
        return nullptr;
    std::unique_ptr<HostProfile> taken = std::move(*found);
    m_profiles.erase(found);
    updateShortNames();
    return taken;
}

void HostProfileList::updateShortNames()
{
    int number = 0;
    for (const auto& profile : m_profiles)
        profile->updateShortName(++number);
}
