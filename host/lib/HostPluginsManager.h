#pragma once

#include "TavrikHostExport.h"

#include "lib/HostExtensionDriver.h"
#include "lib/HostProfileList.h"

#include <TvkPluginsManager.h>

#include <QObject>

class TvkPlugin;

/**
 * The plug-ins that the host has, and the profiles, of which the active one says what of the
 * plug-ins is active. "Default" is active until another is chosen.
 */
class TAVRIKHOST_EXPORT HostPluginsManager : public QObject, public TvkPluginsManager
{
    Q_OBJECT

public:
    HostPluginsManager();
    /** Releases what is still adopted: a plug-in object must live until it has been released. */
    ~HostPluginsManager() override;

    /** Each stays valid until that profile is removed. */
    std::vector<TvkProfile*> getProfilesList() const override;
    TvkProfile* getActiveProfile() const override { return m_active; }
    /**
     * For an extension's use: who lists the profiles is left as it is. A profile that is not in the
     * list is ignored, and so is a choice that is made while another is being carried out.
     */
    void setActiveProfile(TvkProfile* profile) override;

    /**
     * Loads the plug-in's extensions, creates their widgets, and activates and shows what the
     * active profile has of them. Twice does no harm.
     */
    void adopt(TvkPlugin& plugin) { m_driver.adopt(plugin, *m_active); }
    /**
     * Deactivates them, releases their widgets and unloads; the plug-in object stays. A plug-in
     * that has not been adopted is left alone.
     */
    void release(TvkPlugin& plugin) { m_driver.release(plugin); }

    const HostExtensions& extensions() const { return m_driver.extensions(); }
    const HostProfileList& profiles() const { return m_profiles; }
    HostProfile& activeProfile() const { return *m_active; }

    // What follows is the host's: who lists the profiles, as a tool bar does, is activated afresh.
    // Names are free ones of the list.

    /** Takes the profiles of the last run over; only while there is none but "Default". */
    void readProfiles();
    void chooseProfile(HostProfile& profile);
    /** Adds a profile and chooses it. */
    void createProfile(const QString& name, const HostProfileContents& contents);
    void changeProfile(HostProfile& profile, const QString& name,
                       const HostProfileContents& contents);
    /** Removes a profile; if it is active, "Default" comes. That one itself stays. */
    void removeProfile(HostProfile& profile);

signals:
    /** The active profile, or the list, is about to change; everything is still as it was. */
    void aboutToChange();
    void changed();
    /** Somebody is there now who has not been told what is selected. */
    void selectionWanted();

private:
    void apply(HostProfile& next, bool listingsToo);

    HostProfileList m_profiles;
    HostProfile* m_active; ///< one of the list
    // Listing the profiles is const to those who do it.
    mutable HostExtensionDriver m_driver;
    bool m_applying = false;
};
