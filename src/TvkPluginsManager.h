#pragma once

#include "TavrikExtenderAPIExport.h"

#include <vector>

class TvkProfile;

/** The host's profiles. One per process, made by the host. */
class TAVRIKEXTENDERAPI_EXPORT TvkPluginsManager
{
public:
    TvkPluginsManager(const TvkPluginsManager&) = delete;
    TvkPluginsManager& operator=(const TvkPluginsManager&) = delete;
    virtual ~TvkPluginsManager();

    /** The host's manager; null while no host is up. */
    static TvkPluginsManager* getInstance();
    /** For the host: the manager that getInstance() answers from now on. Not owned. */
    static void setInstance(TvkPluginsManager* manager);

    /** The host's profiles, in the order in which a user is shown them. Not owned. */
    virtual std::vector<TvkProfile*> getProfilesList() const = 0;
    /** The profile in force; null before the host has chosen one. */
    virtual TvkProfile* getActiveProfile() const = 0;
    /**
     * Makes a profile the one in force. Extensions may be deactivated and activated by this,
     * the caller's own included: call it last.
     */
    virtual void setActiveProfile(TvkProfile* profile) = 0;

protected:
    TvkPluginsManager() = default;
};
