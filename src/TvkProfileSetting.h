#pragma once

#include "TavrikExtenderAPIExport.h"

#include <map>

class TvkExtension;

/**
 * What a profile says of one extension: the extensions that it controls, each with a setting of its
 * own or null. The docks choose their editors among the extensions that their setting controls.
 */
class TAVRIKEXTENDERAPI_EXPORT TvkProfileSetting
{
public:
    /** Ordered by the extensions' addresses, which for one plug-in is the order of its members. */
    using ControlledExtensions = std::map<TvkExtension*, TvkProfileSetting*>;

    /** Neither the extensions nor their settings are owned. */
    const ControlledExtensions& getControlledExtensions() const { return m_controlled; }
    /** For the host: puts an extension under this setting's control. */
    void control(TvkExtension* extension, TvkProfileSetting* setting = nullptr);
    /** For the host: takes an extension out again; one that is not controlled is ignored. */
    void release(TvkExtension* extension);

private:
    ControlledExtensions m_controlled;
};
