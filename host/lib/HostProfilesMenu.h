#pragma once

#include "TavrikHostExport.h"

#include <QMenu>

class HostPluginsManager;
class HostProfile;
class QActionGroup;

/** The Profiles menu: chooses the active profile, and makes, changes and removes profiles. */
class TAVRIKHOST_EXPORT HostProfilesMenu : public QMenu
{
    Q_OBJECT

public:
    /** The manager is not owned. */
    HostProfilesMenu(HostPluginsManager& manager, QWidget* parent);

private slots:
    void fill();
    void choose(QAction* action);
    void create();
    void duplicate();
    void rename();
    void edit();
    void remove();

private:
    void addProfiles();
    void createLike(const QString& title, const QString& name, const HostProfile& original);
    QAction* addEntry(const QString& text, const char* name, const char* slot);

    HostPluginsManager& m_manager;
    QActionGroup* m_group = nullptr; ///< of the profiles, so that one is marked
};
