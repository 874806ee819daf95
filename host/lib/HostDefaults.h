#pragma once

#include "TavrikHostExport.h"

#include "lib/HostNodeEditor.h"

#include <TvkPlugin.h>

/**
 * What the host itself contributes, as a plug-in of its own: in no file, but driven like any other,
 * and its editors stand under the same profile settings as those of the others.
 */
class TAVRIKHOST_EXPORT HostDefaults final : public TvkPlugin
{
public:
    /** The services are not owned. */
    explicit HostDefaults(HostServices& services);
    ~HostDefaults() override;

    void load() override;

private:
    HostNodeEditor m_nodeEditor;
};
