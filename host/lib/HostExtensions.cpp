#include "lib/HostExtensions.h"

#include "lib/HostText.h"

#include <TvkEditor.h>
#include <TvkPlugin.h>

#include <algorithm>
#include <iterator>

HostExtensions::HostExtensions() = default;

HostExtensions::~HostExtensions() = default;

void HostExtensions::add(TvkPlugin& plugin)
{
    for (TvkExtension* extension : plugin.getExtensions()) {
        const bool isEditor = dynamic_cast<TvkEditor*>(extension) != nullptr;
        m_all.push_back({extension, &plugin, keyFor(plugin, *extension), isEditor});
    }
}

std::vector<HostExtension> HostExtensions::take(const TvkPlugin& plugin)
{
    const auto first =
        std::stable_partition(m_all.begin(), m_all.end(),
                              [&](const HostExtension& one) { return one.plugin != &plugin; });
    std::vector<HostExtension> taken(std::make_move_iterator(first),
                                     std::make_move_iterator(m_all.end()));
    m_all.erase(first, m_all.end());
    return taken;
}

bool HostExtensions::has(const TvkPlugin& plugin) const
{
    return std::any_of(m_all.begin(), m_all.end(),
                       [&](const HostExtension& one) { return one.plugin == &plugin; });
}

bool HostExtensions::hasKey(const QString& key) const
{
    return std::any_of(m_all.begin(), m_all.end(),
                       [&](const HostExtension& one) { return one.key == key; });
}

QString HostExtensions::keyFor(const TvkPlugin& plugin, const TvkExtension& extension) const
{
    const QString wanted = HostText::fromCoin(plugin.getName()) + QLatin1Char('/') +
                           HostText::fromCoin(extension.getName());
    QString key = wanted;
    for (int number = 2; hasKey(key); ++number)
        key = wanted + QLatin1Char(' ') + QString::number(number);
    return key;
}
