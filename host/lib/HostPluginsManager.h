#pragma once

#include "TavrikHostExport.h"

#include <TvkPluginsManager.h>

#include <memory>

class TvkPlugin;

/**
 * Drives the extensions of the plug-ins through their lifecycle, and keeps the profiles. For now
 * there is one profile, "Default", with everything in it: every extension that is no editor is
 * active, and the setting of each controls all editors.
 */
class TAVRIKHOST_EXPORT HostPluginsManager : public TvkPluginsManager
{
public:
    HostPluginsManager();
    /** Releases what is still adopted: a plug-in object must live until it has been released. */
    ~HostPluginsManager() override;

    std::vector<TvkProfile*> getProfilesList() const override;
    TvkProfile* getActiveProfile() const override;
    void setActiveProfile(TvkProfile* profile) override;

    /**
     * Loads the plug-in's extensions, creates their widgets and activates what the profile has.
     * Twice does no harm.
     */
    void adopt(TvkPlugin& plugin);
    /**
     * Deactivates them, releases their widgets and unloads; the plug-in object stays. A plug-in
     * that has not been adopted is left alone.
     */
    void release(TvkPlugin& plugin);

private:
    class Private;
    std::unique_ptr<Private> d;
};
