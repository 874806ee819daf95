#pragma once

#include "TavrikHostExport.h"

#include <QString>

#include <vector>

class TvkExtension;
class TvkPlugin;

/** An extension that a plug-in has handed over, under the key by which profiles know it. */
struct HostExtension
{
    TvkExtension* extension; ///< not owned
    TvkPlugin* plugin;       ///< not owned
    QString key; ///< the plug-in's name, the extension's; a number if that is not enough
    bool isEditor;
};

/** The extensions of all plug-ins that the host has, in the order of their registration. */
class TAVRIKHOST_EXPORT HostExtensions
{
public:
    HostExtensions();
    ~HostExtensions();

    /** Adds what the plug-in has registered. */
    void add(TvkPlugin& plugin);
    /** Takes the plug-in's extensions out and hands them over. */
    std::vector<HostExtension> take(const TvkPlugin& plugin);
    bool has(const TvkPlugin& plugin) const;

    const std::vector<HostExtension>& all() const { return m_all; }

private:
    bool hasKey(const QString& key) const;
    QString keyFor(const TvkPlugin& plugin, const TvkExtension& extension) const;

    std::vector<HostExtension> m_all;
};
