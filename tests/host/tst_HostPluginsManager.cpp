#include "lib/HostPluginsManager.h"

#include "tests/support/RecordingEditor.h"
#include "tests/support/RecordingExtension.h"
#include "tests/support/RecordingPlugin.h"
#include "tests/support/TestMain.h"

#include <TvkProfile.h>
#include <TvkProfileSetting.h>

#include <Inventor/fields/SoSFFloat.h>

#include <memory>

namespace {
QStringList controlled(const TvkExtension& extension)
{
    QStringList names;
    for (const auto& [editor, setting] : extension.getProfileSetting()->getControlledExtensions())
        names << editor->getName().getString();
    names.sort();
    return names;
}

/** A dock that keeps an editor until it is deactivated, as the real ones do. */
class HoldingDock : public RecordingExtension
{
public:
    using RecordingExtension::RecordingExtension;

    void hold(TvkEditor* editor)
    {
        m_editor = editor;
        m_editor->activate();
    }
    void deactivate() override
    {
        if (m_editor)
            m_editor->deactivate();
        m_editor = nullptr;
        RecordingExtension::deactivate();
    }

private:
    TvkEditor* m_editor = nullptr;
};
} // namespace

class tst_HostPluginsManager : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void itIsTheManagerOfTheProcess();
    void thereIsOneProfileAndItIsInForce();
    void choosingTheProfileInForceChangesNothing();

    void adoptingDrivesTheExtensionsInTheOrderOfRegistration();
    void adoptingTwiceDoesNoHarm();
    void editorsAreNotActivated();
    void aSettingControlsEveryEditorAndNothingElse();
    void editorsHaveNoSetting();
    void theSettingIsThereBeforeActivation();
    void editorsAdoptedLaterAreControlledToo();
    void extensionsAdoptedLaterControlEarlierEditors();

    void releasingGoesTheWayBack();
    void releasingAnUnknownPluginLeavesItAlone();
    void releasingTwiceDoesNoHarm();
    void releasedEditorsAreNoLongerControlled();
    void releasedExtensionsHaveNoSetting();
    void aReleasedPluginCanBeAdoptedAgain();
    void aDockOfAnotherPluginLetsGoOfAReleasedEditor();
    void docksOfOtherPluginsAreNotDisturbedOtherwise();
    void theDestructorReleasesWhatIsAdopted();

private:
    void adoptBoth();

    QStringList m_log;
    std::unique_ptr<HostPluginsManager> m_manager;
    std::unique_ptr<HoldingDock> m_dock;
    std::unique_ptr<HoldingDock> m_bar;
    std::unique_ptr<RecordingEditor> m_editor;
    std::unique_ptr<RecordingEditor> m_otherEditor;
    std::unique_ptr<RecordingPlugin> m_plugin;
    std::unique_ptr<RecordingPlugin> m_other;
};

void tst_HostPluginsManager::init()
{
    m_log.clear();
    m_dock = std::make_unique<HoldingDock>("dock", m_log);
    m_bar = std::make_unique<HoldingDock>("bar", m_log);
    m_editor = std::make_unique<RecordingEditor>("editor", SoSFFloat::getClassTypeId(), m_log);
    m_otherEditor = std::make_unique<RecordingEditor>("other", SoSFFloat::getClassTypeId(), m_log);
    using Extensions = std::vector<TvkExtension*>;
    m_plugin = std::make_unique<RecordingPlugin>("plugin", Extensions{m_dock.get(), m_editor.get()},
                                                 m_log);
    m_other = std::make_unique<RecordingPlugin>(
        "second", Extensions{m_otherEditor.get(), m_bar.get()}, m_log);
    m_manager = std::make_unique<HostPluginsManager>();
}

void tst_HostPluginsManager::cleanup()
{
    m_manager.reset();
}

void tst_HostPluginsManager::adoptBoth()
{
    m_manager->adopt(*m_plugin);
    m_manager->adopt(*m_other);
    m_log.clear();
}

void tst_HostPluginsManager::itIsTheManagerOfTheProcess()
{
    QCOMPARE(TvkPluginsManager::getInstance(), m_manager.get());
    m_manager.reset();
    QCOMPARE(TvkPluginsManager::getInstance(), nullptr);
}

void tst_HostPluginsManager::thereIsOneProfileAndItIsInForce()
{
    const std::vector<TvkProfile*> profiles = m_manager->getProfilesList();
    QCOMPARE(profiles.size(), std::size_t(1));
    QCOMPARE(profiles.front()->getName().getString(), "Default");
    QCOMPARE(m_manager->getActiveProfile(), profiles.front());
}

void tst_HostPluginsManager::choosingTheProfileInForceChangesNothing()
{
    adoptBoth();
    TvkProfile* profile = m_manager->getActiveProfile();
    m_manager->setActiveProfile(profile);
    m_manager->setActiveProfile(nullptr);
    QCOMPARE(m_manager->getActiveProfile(), profile);
    QVERIFY2(m_log.isEmpty(), qPrintable(m_log.join(", ")));
}

void tst_HostPluginsManager::adoptingDrivesTheExtensionsInTheOrderOfRegistration()
{
    m_manager->adopt(*m_other);
    QCOMPARE(m_log, (QStringList{"second load", "other createWidgets", "bar createWidgets",
                                 "bar activate", "bar show"}));
    QVERIFY(m_other->isLoaded());
}

void tst_HostPluginsManager::adoptingTwiceDoesNoHarm()
{
    m_manager->adopt(*m_plugin);
    m_log.clear();
    m_manager->adopt(*m_plugin);
    QVERIFY(m_log.isEmpty());
    QCOMPARE(controlled(*m_dock), QStringList{"editor"});
}

void tst_HostPluginsManager::editorsAreNotActivated()
{
    adoptBoth();
    QVERIFY(!m_editor->isActive());
    QVERIFY(m_dock->isActive());
}

void tst_HostPluginsManager::aSettingControlsEveryEditorAndNothingElse()
{
    adoptBoth();
    QCOMPARE(controlled(*m_dock), (QStringList{"editor", "other"}));
}

void tst_HostPluginsManager::editorsHaveNoSetting()
{
    adoptBoth();
    QCOMPARE(m_editor->getProfileSetting(), nullptr);
}

void tst_HostPluginsManager::theSettingIsThereBeforeActivation()
{
    class Dock : public RecordingExtension
    {
    public:
        using RecordingExtension::RecordingExtension;
        void activate() override { hadSetting = getProfileSetting() != nullptr; }
        bool hadSetting = false;
    } dock("dock", m_log);
    RecordingPlugin plugin("plugin", {&dock}, m_log);
    m_manager->adopt(plugin);
    QVERIFY(dock.hadSetting);
    m_manager->release(plugin);
}

void tst_HostPluginsManager::editorsAdoptedLaterAreControlledToo()
{
    m_manager->adopt(*m_plugin);
    QCOMPARE(controlled(*m_dock), QStringList{"editor"});
    m_manager->adopt(*m_other);
    QCOMPARE(controlled(*m_dock), (QStringList{"editor", "other"}));
}

void tst_HostPluginsManager::extensionsAdoptedLaterControlEarlierEditors()
{
    adoptBoth();
    QCOMPARE(controlled(*m_bar), (QStringList{"editor", "other"}));
}

void tst_HostPluginsManager::releasingGoesTheWayBack()
{
    RecordingExtension first("first", m_log);
    RecordingExtension second("second", m_log);
    RecordingPlugin plugin("plugin", {&first, m_editor.get(), &second}, m_log);
    m_manager->adopt(plugin);
    m_log.clear();
    m_manager->release(plugin);
    QCOMPARE(m_log,
             (QStringList{"second deactivate", "first deactivate", "second releaseWidgets",
                          "editor releaseWidgets", "first releaseWidgets", "plugin unload"}));
    QVERIFY(!plugin.isLoaded());
}

void tst_HostPluginsManager::releasingAnUnknownPluginLeavesItAlone()
{
    m_manager->release(*m_plugin);
    QVERIFY(m_log.isEmpty());
}

void tst_HostPluginsManager::releasingTwiceDoesNoHarm()
{
    adoptBoth();
    m_manager->release(*m_plugin);
    m_log.clear();
    m_manager->release(*m_plugin);
    QVERIFY(m_log.isEmpty());
}

void tst_HostPluginsManager::releasedEditorsAreNoLongerControlled()
{
    adoptBoth();
    m_manager->release(*m_plugin);
    QCOMPARE(controlled(*m_bar), QStringList{"other"});
}

void tst_HostPluginsManager::releasedExtensionsHaveNoSetting()
{
    adoptBoth();
    m_manager->release(*m_plugin);
    QCOMPARE(m_dock->getProfileSetting(), nullptr);
}

void tst_HostPluginsManager::aReleasedPluginCanBeAdoptedAgain()
{
    adoptBoth();
    m_manager->release(*m_plugin);
    m_manager->adopt(*m_plugin);
    QVERIFY(m_dock->isActive());
    QCOMPARE(m_plugin->getExtensions().size(), std::size_t(2));
    QCOMPARE(controlled(*m_bar), (QStringList{"editor", "other"}));
}

void tst_HostPluginsManager::aDockOfAnotherPluginLetsGoOfAReleasedEditor()
{
    adoptBoth();
    m_bar->hold(m_editor.get());
    m_log.clear();
    m_manager->release(*m_plugin);
    QVERIFY(!m_editor->isActive());
    QVERIFY(m_bar->isActive());
    QVERIFY(m_log.indexOf("editor deactivate") >= 0);
    QVERIFY(m_log.indexOf("editor deactivate") < m_log.indexOf("editor releaseWidgets"));
}

void tst_HostPluginsManager::docksOfOtherPluginsAreNotDisturbedOtherwise()
{
    adoptBoth();
    m_manager->release(*m_plugin);
    QVERIFY(!m_log.contains("bar deactivate"));
}

void tst_HostPluginsManager::theDestructorReleasesWhatIsAdopted()
{
    adoptBoth();
    m_manager.reset();
    QCOMPARE(m_log.filter("unload"), (QStringList{"second unload", "plugin unload"}));
    QVERIFY(!m_dock->isActive());
}

TAVRIK_TEST_MAIN(tst_HostPluginsManager)
#include "tst_HostPluginsManager.moc"
