#include "lib/HostExtensionDriver.h"

#include "lib/HostProfile.h"

#include <TvkExtension.h>
#include <TvkPlugin.h>
#include <TvkProfileSetting.h>

#include <QScopedValueRollback>

#include <algorithm>

HostExtensionDriver::HostExtensionDriver() = default;

HostExtensionDriver::~HostExtensionDriver() = default;

void HostExtensionDriver::adopt(TvkPlugin& plugin, const HostProfile& profile)
{
    if (std::find(m_plugins.begin(), m_plugins.end(), &plugin) != m_plugins.end())
        return;
    m_plugins.push_back(&plugin);
    plugin.load();
    m_extensions.add(plugin);
    for (TvkExtension* extension : plugin.getExtensions())
        extension->createWidgets();
    enter(profile);
}

void HostExtensionDriver::release(TvkPlugin& plugin)
{
    const auto found = std::find(m_plugins.begin(), m_plugins.end(), &plugin);
    if (found == m_plugins.end())
        return;
    m_plugins.erase(found);
    std::vector<HostExtension> leaving = m_extensions.take(plugin);
    std::reverse(leaving.begin(), leaving.end());
    for (const HostExtension& one : leaving)
        deactivate(*one.extension);
    letGoOfEditors(leaving);
    for (const HostExtension& one : leaving)
        forget(*one.extension);
    for (const HostExtension& one : leaving)
        one.extension->releaseWidgets();
    plugin.unload();
}

void HostExtensionDriver::leave(const HostProfile& next, bool listingsToo)
{
    const std::vector<HostExtension>& all = m_extensions.all();
    for (auto one = all.rbegin(); one != all.rend(); ++one) {
        const bool stays = next.hasExtension(one->key);
        const bool comesAnew = listingsToo && m_listings.count(one->extension) > 0;
        if (!stays || comesAnew)
            deactivate(*one->extension);
    }
}

bool HostExtensionDriver::enter(const HostProfile& profile)
{
    const std::set<TvkExtension*> formerEditors = m_editors;
    updateSettings(profile);
    bool comes = false;
    for (const HostExtension& one : m_extensions.all()) {
        if (one.isEditor || isActive(one.extension) || !profile.hasExtension(one.key))
            continue;
        activate(*one.extension);
        comes = true;
    }
    return comes || m_editors != formerEditors;
}

void HostExtensionDriver::noteListing()
{
    if (m_activating)
        m_listings.insert(m_activating);
}

void HostExtensionDriver::activate(TvkExtension& extension)
{
    const QScopedValueRollback<TvkExtension*> activating(m_activating, &extension);
    m_active.insert(&extension);
    extension.activate();
    extension.show();
}

void HostExtensionDriver::deactivate(TvkExtension& extension)
{
    if (m_active.erase(&extension) > 0)
        extension.deactivate();
}

void HostExtensionDriver::updateSettings(const HostProfile& profile)
{
    m_editors.clear();
    for (const HostExtension& one : m_extensions.all()) {
        if (one.isEditor && profile.hasEditor(one.key))
            m_editors.insert(one.extension);
    }
    for (const HostExtension& one : m_extensions.all()) {
        if (!one.isEditor)
            updateSetting(*one.extension, profile.hasExtension(one.key));
    }
}

void HostExtensionDriver::updateSetting(TvkExtension& extension, bool isInProfile)
{
    if (!isInProfile) {
        extension.setProfileSetting(nullptr);
        m_settings.erase(&extension);
        return;
    }
    auto setting = std::make_unique<TvkProfileSetting>();
    for (TvkExtension* editor : m_editors)
        setting->control(editor);
    extension.setProfileSetting(setting.get());
    m_settings[&extension] = std::move(setting);
}

/** An editor that is active still is shown by a dock of another plug-in, which must let go of it.
 */
void HostExtensionDriver::letGoOfEditors(const std::vector<HostExtension>& leaving)
{
    const auto isShown = [](const HostExtension& one) {
        return one.isEditor && one.extension->isActive();
    };
    if (std::none_of(leaving.begin(), leaving.end(), isShown))
        return;
    for (const HostExtension& other : m_extensions.all()) {
        if (!isActive(other.extension))
            continue;
        deactivate(*other.extension);
        activate(*other.extension);
    }
}

void HostExtensionDriver::forget(TvkExtension& extension)
{
    extension.setProfileSetting(nullptr);
    m_settings.erase(&extension);
    m_editors.erase(&extension);
    m_listings.erase(&extension);
    for (const auto& [other, setting] : m_settings)
        setting->release(&extension);
}
