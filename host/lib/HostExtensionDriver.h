#pragma once

#include "TavrikHostExport.h"

#include "lib/HostExtensions.h"

#include <map>
#include <memory>
#include <set>
#include <vector>

class HostProfile;
class TvkProfileSetting;

/**
 * Drives the extensions through their lifecycle as a profile wants it: widgets are created once,
 * when a plug-in comes, and released when it goes; in between, what a profile has is active and
 * what it leaves out is not. Editors are left to the docks that show them.
 */
class TAVRIKHOST_EXPORT HostExtensionDriver
{
public:
    HostExtensionDriver();
    /** Every plug-in has been released by now. */
    ~HostExtensionDriver();
    HostExtensionDriver(const HostExtensionDriver&) = delete;
    HostExtensionDriver& operator=(const HostExtensionDriver&) = delete;

    /** Loads a plug-in and activates what the profile has of it. Twice does no harm. */
    void adopt(TvkPlugin& plugin, const HostProfile& profile);
    /** The way back; a plug-in that has not been adopted is left alone. */
    void release(TvkPlugin& plugin);
    /** The plug-in that came last; null when there is none. */
    TvkPlugin* lastPlugin() const { return m_plugins.empty() ? nullptr : m_plugins.back(); }

    /**
     * Deactivates, last first, what the next profile leaves out; on request also those that have
     * listed the profiles, so that they do it anew. Whatever else is active stays untouched.
     */
    void leave(const HostProfile& next, bool listingsToo);
    /**
     * Puts the profile's settings in force, then activates and shows what is not active yet. True
     * when something came, or other editors than before are controlled: it must be told what is
     * selected.
     */
    bool enter(const HostProfile& profile);

    /** Notes that the profiles are being listed; whoever does so in activate() will do it anew. */
    void noteListing();

    const HostExtensions& extensions() const { return m_extensions; }

private:
    void activate(TvkExtension& extension);
    void deactivate(TvkExtension& extension);
    bool isActive(TvkExtension* extension) const { return m_active.count(extension) > 0; }
    void updateSettings(const HostProfile& profile);
    void updateSetting(TvkExtension& extension, bool isInProfile);
    void letGoOfEditors(const std::vector<HostExtension>& leaving);
    void forget(TvkExtension& extension);

    std::vector<TvkPlugin*> m_plugins; ///< not owned
    HostExtensions m_extensions;
    /// What the profile in force says of each extension that it has and that is no editor.
    std::map<TvkExtension*, std::unique_ptr<TvkProfileSetting>> m_settings;
    std::set<TvkExtension*> m_editors; ///< of the profile in force
    std::set<TvkExtension*> m_active;
    std::set<TvkExtension*> m_listings;   ///< those who have listed the profiles
    TvkExtension* m_activating = nullptr; ///< the one whose activate() is being run
};
