#include "lib/HostPluginsManager.h"

#include "tests/support/RecordingEditor.h"
#include "tests/support/RecordingExtension.h"
#include "tests/support/RecordingPlugin.h"
#include "tests/support/TestMain.h"

#include <TvkProfileSetting.h>

#include <Inventor/fields/SoSFFloat.h>

#include <functional>
#include <memory>

namespace {

/** An extension that does as a tool bar of profiles does: lists them when it is activated. */
class ListingBar : public RecordingExtension
{
public:
    using RecordingExtension::RecordingExtension;

    void activate() override
    {
        RecordingExtension::activate();
        names.clear();
        for (const TvkProfile* profile : TvkPluginsManager::getInstance()->getProfilesList())
            names << profile->getName().getString();
        active = TvkPluginsManager::getInstance()->getActiveProfile()->getName().getString();
        if (onActivation)
            onActivation();
    }

    QStringList names;
    QString active;
    std::function<void()> onActivation;
};

QStringList controlled(const TvkExtension& extension)
{
    QStringList names;
    for (const auto& [editor, setting] : extension.getProfileSetting()->getControlledExtensions())
        names << editor->getName().getString();
    names.sort();
    return names;
}

} // namespace

/** What happens to a plug-in's extensions when another profile becomes the active one. */
class tst_HostProfileSwitching : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void whatLeavesGoesLastFirstBeforeAnythingComes();
    void whatStaysIsNotTouched();
    void widgetsAreNeitherMadeNorReleased();
    void whatLeavesHasNoSettingAnyMore();
    void aSettingControlsTheProfilesEditorsOnly();
    void theNewSettingIsThereBeforeActivation();
    void theActiveProfileIsTheNewOneDuringActivation();
    void aPluginThatComesLaterFollowsTheActiveProfile();
    void releasingAPluginSparesWhatIsNotActive();

    void aStrangeProfileIsIgnored();
    void theActiveProfileChosenAgainChangesNothing();
    void aChoiceInsideAnActivationIsIgnored();

    void whoListsTheProfilesIsActivatedAfreshByTheHost();
    void whoListsTheProfilesIsLeftAloneByAnExtensionsChoice();
    void aNewProfileIsChosenAndListed();
    void aRenamedProfileIsListed();
    void aRemovedProfileGivesWayToDefault();
    void removingAnotherProfileKeepsTheActiveOne();
    void theDefaultProfileIsNotRemoved();
    void pointersStayValidUntilTheirProfileIsRemoved();

    void theChangeIsAnnouncedBeforeAndAfter();
    void theSelectionIsWantedWhenSomebodyComes();
    void theSelectionIsWantedWhenTheEditorsDiffer();
    void theSelectionIsNotWantedOtherwise();

    void extensionsOfTheSameNameHaveKeysOfTheirOwn();

private:
    HostProfile& create(const QSet<QString>& extensions, const QSet<QString>& withoutEditors = {})
    {
        m_manager->createProfile("Mine", {extensions, withoutEditors});
        return m_manager->activeProfile();
    }
    void goBackToDefault() { m_manager->chooseProfile(m_manager->profiles().defaultProfile()); }

    QStringList m_log;
    std::unique_ptr<RecordingExtension> m_first;
    std::unique_ptr<RecordingExtension> m_second;
    std::unique_ptr<ListingBar> m_bar;
    std::unique_ptr<RecordingEditor> m_editor;
    std::unique_ptr<RecordingEditor> m_otherEditor;
    std::unique_ptr<RecordingPlugin> m_plugin;
    std::unique_ptr<HostPluginsManager> m_manager; ///< goes first
};

void tst_HostProfileSwitching::init()
{
    m_manager.reset();
    m_log.clear();
    m_first = std::make_unique<RecordingExtension>("first", m_log);
    m_second = std::make_unique<RecordingExtension>("second", m_log);
    m_bar = std::make_unique<ListingBar>("bar", m_log);
    m_editor = std::make_unique<RecordingEditor>("editor", SoSFFloat::getClassTypeId(), m_log);
    m_otherEditor = std::make_unique<RecordingEditor>("other", SoSFFloat::getClassTypeId(), m_log);
    m_plugin = std::make_unique<RecordingPlugin>(
        "plugin",
        std::vector<TvkExtension*>{m_bar.get(), m_first.get(), m_editor.get(), m_otherEditor.get(),
                                   m_second.get()},
        m_log);
    m_manager = std::make_unique<HostPluginsManager>();
    m_manager->adopt(*m_plugin);
    m_log.clear();
}

void tst_HostProfileSwitching::whatLeavesGoesLastFirstBeforeAnythingComes()
{
    HostProfile& mine = create({"/bar"});
    QCOMPARE(m_log, (QStringList{"second deactivate", "first deactivate", "bar deactivate",
                                 "bar activate", "bar show"}));
    goBackToDefault();
    m_log.clear();
    m_manager->setActiveProfile(&mine);
    QCOMPARE(m_log, (QStringList{"second deactivate", "first deactivate"}));
    m_log.clear();
    m_manager->setActiveProfile(&m_manager->profiles().defaultProfile());
    QCOMPARE(m_log,
             (QStringList{"first activate", "first show", "second activate", "second show"}));
}

void tst_HostProfileSwitching::whatStaysIsNotTouched()
{
    create({"/first"});
    QVERIFY(m_first->isActive());
    QVERIFY2(m_log.filter("first").isEmpty(), qPrintable(m_log.join(", ")));
}

void tst_HostProfileSwitching::widgetsAreNeitherMadeNorReleased()
{
    create({});
    goBackToDefault();
    QVERIFY2(m_log.filter("Widgets").isEmpty(), qPrintable(m_log.join(", ")));
}

void tst_HostProfileSwitching::whatLeavesHasNoSettingAnyMore()
{
    create({"/first"});
    QVERIFY(m_first->getProfileSetting());
    QVERIFY(!m_second->getProfileSetting());
}

void tst_HostProfileSwitching::aSettingControlsTheProfilesEditorsOnly()
{
    create({"/first"}, {"/editor"});
    QCOMPARE(controlled(*m_first), QStringList{"other"});
    goBackToDefault();
    QCOMPARE(controlled(*m_first), (QStringList{"editor", "other"}));
}

void tst_HostProfileSwitching::theNewSettingIsThereBeforeActivation()
{
    HostProfile& mine = create({"/bar"}, {"/other"});
    m_manager->changeProfile(mine, "Mine", {{}, {}});
    QStringList seen;
    m_bar->onActivation = [&] { seen = controlled(*m_bar); };
    m_manager->changeProfile(mine, "Mine", {{"/bar"}, {"/editor"}});
    QCOMPARE(seen, QStringList{"other"});
}

void tst_HostProfileSwitching::theActiveProfileIsTheNewOneDuringActivation()
{
    create({"/bar"});
    QCOMPARE(m_bar->active, QString("Mine"));
}

void tst_HostProfileSwitching::aPluginThatComesLaterFollowsTheActiveProfile()
{
    create({"/late"});
    RecordingExtension late("late", m_log);
    RecordingExtension absent("absent", m_log);
    RecordingPlugin plugin("second", {&late, &absent}, m_log);
    m_manager->adopt(plugin);
    QVERIFY(late.isActive());
    QVERIFY(late.isShown());
    QVERIFY(!absent.isActive());
    QVERIFY(m_log.contains("absent createWidgets"));
    m_manager->release(plugin);
}

void tst_HostProfileSwitching::releasingAPluginSparesWhatIsNotActive()
{
    create({"/first"});
    m_log.clear();
    m_manager->release(*m_plugin);
    QCOMPARE(m_log.filter(" deactivate"), QStringList{"first deactivate"});
    QCOMPARE(m_log.filter("releaseWidgets").size(), 5);
}

void tst_HostProfileSwitching::aStrangeProfileIsIgnored()
{
    HostProfile stranger("Default", HostProfile::Everything);
    TvkProfile* const active = m_manager->getActiveProfile();
    m_manager->setActiveProfile(&stranger);
    m_manager->setActiveProfile(nullptr);
    QCOMPARE(m_manager->getActiveProfile(), active);
    QVERIFY(m_log.isEmpty());
}

void tst_HostProfileSwitching::theActiveProfileChosenAgainChangesNothing()
{
    QSignalSpy changes(m_manager.get(), SIGNAL(changed()));
    m_manager->setActiveProfile(m_manager->getActiveProfile());
    QVERIFY(changes.isEmpty());
}

void tst_HostProfileSwitching::aChoiceInsideAnActivationIsIgnored()
{
    HostProfile& mine = create({});
    m_bar->onActivation = [&] { m_manager->setActiveProfile(&mine); };
    goBackToDefault();
    QCOMPARE(m_manager->activeProfile().name(), QString("Default"));
    QVERIFY(m_second->isActive());
}

void tst_HostProfileSwitching::whoListsTheProfilesIsActivatedAfreshByTheHost()
{
    create({"/bar", "/first"});
    goBackToDefault();
    QCOMPARE(m_bar->active, QString("Default"));
    QCOMPARE(m_log.filter("bar activate").size(), 2);
    QVERIFY(m_log.filter("first").isEmpty());
}

void tst_HostProfileSwitching::whoListsTheProfilesIsLeftAloneByAnExtensionsChoice()
{
    create({"/bar"});
    m_log.clear();
    m_manager->setActiveProfile(&m_manager->profiles().defaultProfile());
    QVERIFY2(m_log.filter("bar").isEmpty(), qPrintable(m_log.join(", ")));
}

void tst_HostProfileSwitching::aNewProfileIsChosenAndListed()
{
    create({"/bar"});
    QCOMPARE(m_manager->activeProfile().name(), QString("Mine"));
    QCOMPARE(m_bar->names, (QStringList{"Default", "Mine"}));
}

void tst_HostProfileSwitching::aRenamedProfileIsListed()
{
    HostProfile& mine = create({"/bar"});
    m_manager->changeProfile(mine, "Yours", mine.contents);
    QCOMPARE(m_bar->names, (QStringList{"Default", "Yours"}));
}

void tst_HostProfileSwitching::aRemovedProfileGivesWayToDefault()
{
    HostProfile& mine = create({"/bar"});
    m_manager->removeProfile(mine);
    QCOMPARE(m_manager->activeProfile().name(), QString("Default"));
    QCOMPARE(m_bar->names, QStringList{"Default"});
    QVERIFY(m_second->isActive());
}

void tst_HostProfileSwitching::removingAnotherProfileKeepsTheActiveOne()
{
    HostProfile& mine = create({"/bar"});
    m_manager->createProfile("Yours", {{"/bar", "/first"}, {}});
    m_manager->removeProfile(mine);
    QCOMPARE(m_manager->activeProfile().name(), QString("Yours"));
    QCOMPARE(m_bar->names, (QStringList{"Default", "Yours"}));
}

void tst_HostProfileSwitching::theDefaultProfileIsNotRemoved()
{
    m_manager->removeProfile(m_manager->activeProfile());
    QCOMPARE(m_manager->getProfilesList().size(), std::size_t(1));
    QCOMPARE(m_manager->activeProfile().name(), QString("Default"));
}

void tst_HostProfileSwitching::pointersStayValidUntilTheirProfileIsRemoved()
{
    TvkProfile* const mine = &create({});
    for (int i = 0; i < 20; ++i)
        m_manager->createProfile(QString::number(i), {});
    m_manager->removeProfile(m_manager->activeProfile());
    QCOMPARE(m_manager->getProfilesList().at(1), mine);
    QCOMPARE(mine->getName().getString(), "Mine");
}

void tst_HostProfileSwitching::theChangeIsAnnouncedBeforeAndAfter()
{
    QStringList announced;
    const auto note = [&](const char* signal) {
        announced << signal + (' ' + m_manager->activeProfile().name());
    };
    connect(m_manager.get(), &HostPluginsManager::aboutToChange, [&] { note("before"); });
    connect(m_manager.get(), &HostPluginsManager::changed, [&] { note("after"); });
    create({});
    QCOMPARE(announced, (QStringList{"before Default", "after Mine"}));
}

void tst_HostProfileSwitching::theSelectionIsWantedWhenSomebodyComes()
{
    create({});
    QSignalSpy wanted(m_manager.get(), SIGNAL(selectionWanted()));
    goBackToDefault();
    QCOMPARE(wanted.size(), 1);
}

void tst_HostProfileSwitching::theSelectionIsWantedWhenTheEditorsDiffer()
{
    QSignalSpy wanted(m_manager.get(), SIGNAL(selectionWanted()));
    create({"/first"}, {"/editor"});
    QCOMPARE(wanted.size(), 1);
}

void tst_HostProfileSwitching::theSelectionIsNotWantedOtherwise()
{
    QSignalSpy wanted(m_manager.get(), SIGNAL(selectionWanted()));
    create({"/first"});
    QVERIFY(wanted.isEmpty());
}

void tst_HostProfileSwitching::extensionsOfTheSameNameHaveKeysOfTheirOwn()
{
    RecordingExtension twin("first", m_log);
    RecordingPlugin plugin("second", {&twin}, m_log);
    m_manager->adopt(plugin);
    create({"/first 2"});
    QVERIFY(twin.isActive());
    QVERIFY(!m_first->isActive());
    m_manager->release(plugin);
}

TAVRIK_TEST_MAIN(tst_HostProfileSwitching)
#include "tst_HostProfileSwitching.moc"
