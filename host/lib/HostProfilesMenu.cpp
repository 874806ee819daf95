#include "lib/HostProfilesMenu.h"

#include "lib/HostPluginsManager.h"
#include "lib/HostProfileDialog.h"

#include <QActionGroup>
#include <QMessageBox>

HostProfilesMenu::HostProfilesMenu(HostPluginsManager& manager, QWidget* parent)
    : QMenu(tr("&Profiles"), parent), m_manager(manager)
{
    setObjectName(QStringLiteral("menuProfiles"));
    connect(this, SIGNAL(aboutToShow()), SLOT(fill()));
    fill();
}

void HostProfilesMenu::fill()
{
    clear();
    addProfiles();
    addSeparator();
    addEntry(tr("&New..."), "actionNewProfile", SLOT(create()));
    addEntry(tr("D&uplicate..."), "actionDuplicateProfile", SLOT(duplicate()));
    const bool mayChange = !m_manager.activeProfile().hasEverything();
    addEntry(tr("&Rename..."), "actionRenameProfile", SLOT(rename()))->setEnabled(mayChange);
    addEntry(tr("&Edit..."), "actionEditProfile", SLOT(edit()))->setEnabled(mayChange);
    addEntry(tr("&Delete"), "actionDeleteProfile", SLOT(remove()))->setEnabled(mayChange);
}

void HostProfilesMenu::addProfiles()
{
    // An exclusive group's marks are radio buttons.
    delete m_group;
    m_group = new QActionGroup(this);
    connect(m_group, SIGNAL(triggered(QAction*)), SLOT(choose(QAction*)));
    for (const auto& profile : m_manager.profiles().all()) {
        // An "&" in a name is no mnemonic.
        QAction* action = addAction(QString(profile->name()).replace('&', QLatin1String("&&")));
        action->setData(profile->name());
        action->setCheckable(true);
        action->setChecked(profile.get() == &m_manager.activeProfile());
        m_group->addAction(action);
    }
}

QAction* HostProfilesMenu::addEntry(const QString& text, const char* name, const char* slot)
{
    QAction* action = addAction(text, this, slot);
    action->setObjectName(QLatin1String(name));
    return action;
}

void HostProfilesMenu::choose(QAction* action)
{
    if (HostProfile* const profile = m_manager.profiles().find(action->data().toString()))
        m_manager.chooseProfile(*profile);
}

void HostProfilesMenu::create()
{
    createLike(tr("New Profile"), tr("Profile"), m_manager.profiles().defaultProfile());
}

void HostProfilesMenu::duplicate()
{
    const HostProfile& original = m_manager.activeProfile();
    createLike(tr("Duplicate Profile"), tr("Copy of %1").arg(original.name()), original);
}

void HostProfilesMenu::createLike(const QString& title, const QString& name,
                                  const HostProfile& original)
{
    HostProfileDialog dialog(m_manager.profiles(), nullptr, HostProfileDialog::NameAndContents,
                             parentWidget());
    dialog.setWindowTitle(title);
    dialog.setName(m_manager.profiles().freeName(name));
    dialog.setContents(m_manager.extensions(), original);
    if (dialog.exec() == QDialog::Accepted)
        m_manager.createProfile(dialog.name(), dialog.contents());
}

void HostProfilesMenu::rename()
{
    HostProfile& profile = m_manager.activeProfile();
    HostProfileDialog dialog(m_manager.profiles(), &profile, HostProfileDialog::NameOnly,
                             parentWidget());
    dialog.setWindowTitle(tr("Rename Profile"));
    if (dialog.exec() == QDialog::Accepted)
        m_manager.changeProfile(profile, dialog.name(), profile.contents);
}

void HostProfilesMenu::edit()
{
    HostProfile& profile = m_manager.activeProfile();
    HostProfileDialog dialog(m_manager.profiles(), &profile, HostProfileDialog::NameAndContents,
                             parentWidget());
    dialog.setWindowTitle(tr("Edit Profile"));
    dialog.setContents(m_manager.extensions(), profile);
    if (dialog.exec() == QDialog::Accepted)
        m_manager.changeProfile(profile, dialog.name(), dialog.contents());
}

void HostProfilesMenu::remove()
{
    HostProfile& profile = m_manager.activeProfile();
    QMessageBox box(QMessageBox::Question, tr("Delete Profile"),
                    tr("Delete the profile \"%1\"?").arg(profile.name()),
                    QMessageBox::Yes | QMessageBox::No, parentWidget());
    box.setObjectName(QStringLiteral("deleteProfileBox"));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    if (box.exec() == QMessageBox::Yes)
        m_manager.removeProfile(profile);
}
