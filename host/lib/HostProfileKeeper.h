#pragma once

#include "TavrikHostExport.h"

#include <QByteArray>
#include <QObject>

class HostLayout;
class HostPluginsManager;
class HostServices;

/**
 * Ties the profiles to the window: each keeps the arrangement of the docks in which it was left,
 * those who come with it are told what is selected, and all of it survives the end of the program.
 */
class TAVRIKHOST_EXPORT HostProfileKeeper : public QObject
{
    Q_OBJECT

public:
    /** None is owned. */
    HostProfileKeeper(HostPluginsManager& manager, HostLayout& layout, HostServices& services);
    ~HostProfileKeeper() override;

    /** Takes over what the last run left; from now on every change is stored. */
    void read();
    /** Arranges the docks as the active profile was left. */
    void restoreLayout();
    /** Stores the profiles, if they have been read, with the present arrangement. */
    void save();

private slots:
    void s_aboutToChange();
    void s_changed();
    void s_selectionWanted();

private:
    void store() const;

    HostPluginsManager& m_manager;
    HostLayout& m_layout;
    HostServices& m_services;
    QByteArray m_lastLayout; ///< a profile that has none of its own takes it over
    bool m_hasRead = false;
};
