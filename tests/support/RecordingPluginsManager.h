#pragma once

#include <TvkPluginsManager.h>
#include <TvkProfile.h>

#include <QByteArray>

#include <functional>
#include <initializer_list>
#include <memory>
#include <vector>

/** A manager for tests: profiles of these names, of which the chosen one becomes the active one. */
class RecordingPluginsManager : public TvkPluginsManager
{
public:
    RecordingPluginsManager(std::initializer_list<const char*> names)
    {
        setInstance(this);
        for (const char* name : names)
            m_profiles.push_back(std::make_unique<TvkProfile>(name));
    }

    std::vector<TvkProfile*> getProfilesList() const override
    {
        std::vector<TvkProfile*> list;
        for (const auto& profile : m_profiles)
            list.push_back(profile.get());
        return list;
    }
    TvkProfile* getActiveProfile() const override { return m_active; }
    void setActiveProfile(TvkProfile* profile) override
    {
        m_active = profile;
        ++choices;
        if (onChoice)
            onChoice();
    }

    /** Makes the profile at a place of the list the active one without counting it as a choice. */
    void start(std::size_t index) { m_active = m_profiles.at(index).get(); }
    /** The active profile's name; "" when there is none. */
    QByteArray active() const { return m_active ? m_active->getName().getString() : ""; }

    int choices = 0;                ///< calls of setActiveProfile()
    std::function<void()> onChoice; ///< what else a choice does

private:
    std::vector<std::unique_ptr<TvkProfile>> m_profiles;
    TvkProfile* m_active = nullptr;
};
