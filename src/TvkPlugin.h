#pragma once

#include "TavrikExtenderAPIExport.h"

#include <Inventor/SbString.h>

#include <vector>

class TvkExtension;

/**
 * What a plug-in library hands to the host: who it is, and the extensions that it contributes.
 *
 * A library exports `extern "C" TvkPlugin* loadPlugin()` and `extern "C" void unloadPlugin()`. The
 * host calls loadPlugin() once, with QApplication and SoDB up, then load(); at the end unload() and
 * unloadPlugin(), before QApplication goes.
 */
class TAVRIKEXTENDERAPI_EXPORT TvkPlugin
{
public:
    TvkPlugin() = default;
    TvkPlugin(const TvkPlugin&) = delete;
    TvkPlugin& operator=(const TvkPlugin&) = delete;

    /**
     * Hands the plug-in's extensions over. A subclass calls addExtension() for each of its own, in
     * the order in which the host is to see them, and this last; from then on the host drives them.
     */
    virtual void load();
    /** Takes the extensions back: the host has released their widgets and forgets them. */
    virtual void unload();
    virtual ~TvkPlugin();

    /** Adds one extension to the list that the host reads. It stays the plug-in's own. */
    void addExtension(TvkExtension* extension);

    /** The extensions added so far, in the order in which they were added. Not owned. */
    const std::vector<TvkExtension*>& getExtensions() const { return m_extensions; }
    /** True between load() and unload(). */
    bool isLoaded() const { return m_loaded; }

    const SbString& getName() const { return m_name; }
    const SbString& getDescription() const { return m_description; }
    const SbString& getVendor() const { return m_vendor; }
    const SbString& getVersion() const { return m_version; }

protected:
    // Set by the subclass's constructor.
    SbString m_name;
    SbString m_description;
    SbString m_vendor;
    SbString m_version;

private:
    std::vector<TvkExtension*> m_extensions;
    bool m_loaded = false;
};
