#include "ProfileSelector/TvkProfileSelectorExtension.h"

#include <TvkPluginsManager.h>
#include <TvkProfile.h>
#include <TvkShell.h>

#include <QComboBox>
#include <QToolBar>

namespace {

void append(QComboBox& combo, const TvkProfile& profile)
{
    const SbString name = profile.getName();
    combo.insertItem(combo.count(), QIcon(), QString::fromLatin1(name.getString()), QVariant());
}

} // namespace

TvkProfileSelectorExtension::TvkProfileSelectorExtension()
{
    setObjectName(QStringLiteral("TvkProfileSelectorExtension"));
    m_name = "Profile Selector";
    m_description = "A toolbar to select the active profile.";
    m_vendor = "Quelvar";
    m_version = "1.0.0";
}

TvkProfileSelectorExtension::~TvkProfileSelectorExtension()
{
    TvkProfileSelectorExtension::releaseWidgets();
}

void TvkProfileSelectorExtension::createWidgets()
{
    releaseWidgets();
    toolBar = new QToolBar;
    toolBar->setObjectName(objectName());
    toolBar->setWindowTitle(QStringLiteral("Profile Selector"));
    profileCombo = new QComboBox(toolBar);
    profileCombo->setObjectName(QStringLiteral("profileCombo"));
    profileCombo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    profileCombo->setToolTip(QStringLiteral("Select the active profile."));
    toolBar->addWidget(profileCombo);
}

/** Kept on purpose: the base comes last here, where other extensions call it first. */
void TvkProfileSelectorExtension::activate()
{
    if (!toolBar)
        return;
    follow(false); // or the filling would count as a choice, when it comes twice
    fill();
    follow(true);
    if (isActive())
        return;
    TvkShell::getInstance()->addToolBar(toolBar, Qt::TopToolBarArea);
    TvkShell::getInstance()->registerExtension(this, true);
    TvkExtension::activate();
}

void TvkProfileSelectorExtension::deactivate()
{
    // Once: a second deactivation finds nothing to disconnect and nothing to take out.
    const bool wasActive = isActive();
    TvkExtension::deactivate();
    if (!wasActive)
        return;
    follow(false);
    TvkShell::getInstance()->removeToolBar(toolBar);
    TvkShell::getInstance()->unregisterExtension(this);
}

void TvkProfileSelectorExtension::show()
{
    TvkExtension::show();
    if (toolBar)
        toolBar->show();
}

void TvkProfileSelectorExtension::hide()
{
    TvkExtension::hide();
    if (toolBar)
        toolBar->hide();
}

void TvkProfileSelectorExtension::releaseWidgets()
{
    delete profileCombo.data();
    delete toolBar.data();
}

void TvkProfileSelectorExtension::s_currentIndexChanged(int index)
{
    TvkPluginsManager& manager = *TvkPluginsManager::getInstance();
    TvkProfile* chosen = nullptr;
    int count = 0;
    for (TvkProfile* profile : manager.getProfilesList()) {
        // Kept on purpose: every choice appends the names up to the chosen one once more.
        if (profileCombo)
            append(*profileCombo, *profile);
        if (count++ == index) {
            chosen = profile;
            break;
        }
    }
    // Last of all: this may deactivate the extension itself.
    if (chosen)
        manager.setActiveProfile(chosen);
}

void TvkProfileSelectorExtension::fill()
{
    const TvkPluginsManager& manager = *TvkPluginsManager::getInstance();
    const TvkProfile* const active = manager.getActiveProfile();
    int current = -1;
    profileCombo->clear();
    for (const TvkProfile* profile : manager.getProfilesList()) {
        if (profile == active)
            current = profileCombo->count();
        append(*profileCombo, *profile);
    }
    profileCombo->setCurrentIndex(current);
}

void TvkProfileSelectorExtension::follow(bool following)
{
    if (!profileCombo)
        return;
    if (following)
        connect(profileCombo, SIGNAL(currentIndexChanged(int)), SLOT(s_currentIndexChanged(int)));
    else
        disconnect(profileCombo, SIGNAL(currentIndexChanged(int)), this,
                   SLOT(s_currentIndexChanged(int)));
}
