#include "lib/HostProfileStore.h"

#include "lib/HostProfileName.h"
#include "lib/HostSettings.h"

#include <QStringList>

namespace {

const char* const GroupKey = "profiles";
const char* const ListKey = "list";
const char* const ActiveKey = "active";
const char* const NameKey = "name";
const char* const ExtensionsKey = "extensions";
const char* const WithoutEditorsKey = "withoutEditors";
const char* const LayoutKey = "layout";

QSet<QString> readKeys(const QSettings& settings, const char* key)
{
    const QStringList keys = settings.value(QLatin1String(key)).toStringList();
    return {keys.begin(), keys.end()};
}

void writeKeys(QSettings& settings, const char* key, const QSet<QString>& keys)
{
    QStringList sorted = keys.values();
    sorted.sort();
    settings.setValue(QLatin1String(key), sorted);
}

/** Somebody may have written into the file: no profile without name, none of another's name. */
void readProfile(const QSettings& settings, HostProfileList& profiles)
{
    const QString name = HostProfileName::tidy(settings.value(NameKey).toString());
    if (name.isEmpty())
        return;
    HostProfile* profile = &profiles.defaultProfile();
    if (name != profile->name()) {
        profile = &profiles.add(profiles.freeName(name), {});
        profile->contents.extensions = readKeys(settings, ExtensionsKey);
        profile->contents.withoutEditors = readKeys(settings, WithoutEditorsKey);
    }
    profile->layout = settings.value(LayoutKey).toByteArray();
}

void writeProfile(QSettings& settings, const HostProfile& profile)
{
    settings.setValue(NameKey, profile.name());
    settings.setValue(LayoutKey, profile.layout);
    if (profile.hasEverything())
        return;
    writeKeys(settings, ExtensionsKey, profile.contents.extensions);
    writeKeys(settings, WithoutEditorsKey, profile.contents.withoutEditors);
}

} // namespace

HostProfile& HostProfileStore::read(HostProfileList& profiles)
{
    HostSettings settings;
    settings.beginGroup(GroupKey);
    const int count = settings.beginReadArray(ListKey);
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        readProfile(settings, profiles);
    }
    settings.endArray();
    HostProfile* const active = profiles.find(settings.value(ActiveKey).toString());
    return active ? *active : profiles.defaultProfile();
}

void HostProfileStore::write(const HostProfileList& profiles, const TvkProfile* active)
{
    HostSettings settings;
    settings.beginGroup(GroupKey);
    settings.remove(QString()); // or those that are gone would come back
    if (const HostProfile* const own = profiles.find(active))
        settings.setValue(ActiveKey, own->name());
    settings.beginWriteArray(ListKey, int(profiles.all().size()));
    int index = 0;
    for (const auto& profile : profiles.all()) {
        settings.setArrayIndex(index++);
        writeProfile(settings, *profile);
    }
    settings.endArray();
}
