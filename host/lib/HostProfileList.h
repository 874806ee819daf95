#pragma once

#include "TavrikHostExport.h"

#include "lib/HostProfile.h"

#include <QCoreApplication>

#include <memory>
#include <vector>

/**
 * The profiles in the order in which a user sees them. The first is "Default", which has everything
 * and is always there. A profile stays where it is in memory until it is removed.
 */
class TAVRIKHOST_EXPORT HostProfileList
{
    Q_DECLARE_TR_FUNCTIONS(HostProfileList)

public:
    HostProfileList();
    ~HostProfileList();
    HostProfileList(const HostProfileList&) = delete;
    HostProfileList& operator=(const HostProfileList&) = delete;

    const std::vector<std::unique_ptr<HostProfile>>& all() const { return m_profiles; }
    HostProfile& defaultProfile() const { return *m_profiles.front(); }
    /** The profile of this name; null if there is none. */
    HostProfile* find(const QString& name) const;
    /** The same profile if it is in the list, null otherwise. Never touches what it is given. */
    HostProfile* find(const TvkProfile* profile) const;

    /**
     * Why a profile cannot have this name, as a sentence for the user; empty if it can. Names are
     * compared without regard to case. The profile that the name is meant for does not count.
     */
    QString complaint(const QString& name, const HostProfile* meantFor = nullptr) const;
    /** The name if it is free, otherwise with the first number behind it that makes it free. */
    QString freeName(const QString& name) const;

    /** Adds a profile of a name that is free. */
    HostProfile& add(const QString& name, const HostProfileContents& contents);
    void rename(HostProfile& profile, const QString& name);
    /** Takes a profile out and hands it over; null for the default one, which stays. */
    std::unique_ptr<HostProfile> take(HostProfile& profile);

private:
    void updateShortNames();

    std::vector<std::unique_ptr<HostProfile>> m_profiles;
};
