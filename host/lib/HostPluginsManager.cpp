#include "lib/HostPluginsManager.h"

#include <TvkEditor.h>
#include <TvkPlugin.h>
#include <TvkProfile.h>
#include <TvkProfileSetting.h>

#include <algorithm>
#include <map>
#include <vector>

namespace {
using Extensions = std::vector<TvkExtension*>;

bool isEditor(const TvkExtension* extension)
{
    return dynamic_cast<const TvkEditor*>(extension) != nullptr;
}
} // namespace

class HostPluginsManager::Private
{
public:
    struct Adopted
    {
        TvkPlugin* plugin;
        Extensions extensions; ///< in the order of registration
    };

    std::vector<Adopted>::iterator find(const TvkPlugin& plugin)
    {
        return std::find_if(adopted.begin(), adopted.end(),
                            [&](const Adopted& one) { return one.plugin == &plugin; });
    }

    void addToProfile(const Extensions& extensions);
    void removeFromProfile(const Extensions& extensions);
    void letGoOfEditors(const Adopted& leaving);

    static void activate(const Extensions& extensions);
    static void deactivate(const Extensions& extensions);

    std::vector<Adopted> adopted;
    TvkProfile profile{"Default"};
    /// What the profile says of each extension that is no editor.
    std::map<TvkExtension*, std::unique_ptr<TvkProfileSetting>> settings;
    Extensions editors;
};

void HostPluginsManager::Private::addToProfile(const Extensions& extensions)
{
    for (TvkExtension* extension : extensions) {
        if (isEditor(extension))
            editors.push_back(extension);
        else
            settings[extension] = std::make_unique<TvkProfileSetting>();
    }
    for (const auto& [extension, setting] : settings) {
        for (TvkExtension* editor : editors)
            setting->control(editor);
        extension->setProfileSetting(setting.get());
    }
}

void HostPluginsManager::Private::removeFromProfile(const Extensions& extensions)
{
    for (TvkExtension* extension : extensions) {
        extension->setProfileSetting(nullptr);
        settings.erase(extension);
        editors.erase(std::remove(editors.begin(), editors.end(), extension), editors.end());
        for (const auto& [other, setting] : settings)
            setting->release(extension);
    }
}

/** An editor that is active still is shown by a dock of another plug-in, which must let go of it.
 */
void HostPluginsManager::Private::letGoOfEditors(const Adopted& leaving)
{
    const auto isShown = [](TvkExtension* extension) {
        return isEditor(extension) && extension->isActive();
    };
    if (std::none_of(leaving.extensions.begin(), leaving.extensions.end(), isShown))
        return;
    for (const Adopted& other : adopted) {
        deactivate(other.extensions);
        activate(other.extensions);
    }
}

void HostPluginsManager::Private::activate(const Extensions& extensions)
{
    for (TvkExtension* extension : extensions)
        if (!isEditor(extension))
            extension->activate();
}

void HostPluginsManager::Private::deactivate(const Extensions& extensions)
{
    for (auto it = extensions.rbegin(); it != extensions.rend(); ++it)
        if (!isEditor(*it))
            (*it)->deactivate();
}

HostPluginsManager::HostPluginsManager() : d(std::make_unique<Private>())
{
    setInstance(this);
}

HostPluginsManager::~HostPluginsManager()
{
    while (!d->adopted.empty())
        release(*d->adopted.back().plugin);
}

std::vector<TvkProfile*> HostPluginsManager::getProfilesList() const
{
    return {&d->profile};
}

TvkProfile* HostPluginsManager::getActiveProfile() const
{
    return &d->profile;
}

void HostPluginsManager::setActiveProfile(TvkProfile*)
{
    // The only profile is in force from the start.
}

void HostPluginsManager::adopt(TvkPlugin& plugin)
{
    if (d->find(plugin) != d->adopted.end())
        return;
    plugin.load();
    const Extensions extensions = plugin.getExtensions();
    d->adopted.push_back({&plugin, extensions});
    for (TvkExtension* extension : extensions)
        extension->createWidgets();
    d->addToProfile(extensions);
    Private::activate(extensions);
}

void HostPluginsManager::release(TvkPlugin& plugin)
{
    const auto found = d->find(plugin);
    if (found == d->adopted.end())
        return;
    const Private::Adopted leaving = *found;
    d->adopted.erase(found);
    Private::deactivate(leaving.extensions);
    d->letGoOfEditors(leaving);
    d->removeFromProfile(leaving.extensions);
    for (auto it = leaving.extensions.rbegin(); it != leaving.extensions.rend(); ++it)
        (*it)->releaseWidgets();
    plugin.unload();
}
