#include "lib/HostProfileKeeper.h"

#include "lib/HostLayout.h"
#include "lib/HostPluginsManager.h"
#include "lib/HostProfileStore.h"
#include "lib/HostServices.h"

HostProfileKeeper::HostProfileKeeper(HostPluginsManager& manager, HostLayout& layout,
                                     HostServices& services)
    : m_manager(manager), m_layout(layout), m_services(services)
{
    connect(&manager, SIGNAL(aboutToChange()), SLOT(s_aboutToChange()));
    connect(&manager, SIGNAL(changed()), SLOT(s_changed()));
    connect(&manager, SIGNAL(selectionWanted()), SLOT(s_selectionWanted()));
}

HostProfileKeeper::~HostProfileKeeper() = default;

void HostProfileKeeper::read()
{
    m_manager.readProfiles();
    m_hasRead = true;
}

void HostProfileKeeper::restoreLayout()
{
    m_layout.setState(m_manager.activeProfile().layout);
}

void HostProfileKeeper::save()
{
    m_manager.activeProfile().layout = m_layout.state();
    store();
}

void HostProfileKeeper::s_aboutToChange()
{
    m_lastLayout = m_layout.state();
    m_manager.activeProfile().layout = m_lastLayout;
}

void HostProfileKeeper::s_changed()
{
    const QByteArray& own = m_manager.activeProfile().layout;
    m_layout.setState(own.isEmpty() ? m_lastLayout : own);
    store();
}

void HostProfileKeeper::s_selectionWanted()
{
    m_services.announceSelection();
}

void HostProfileKeeper::store() const
{
    if (m_hasRead)
        HostProfileStore::write(m_manager.profiles(), m_manager.getActiveProfile());
}
