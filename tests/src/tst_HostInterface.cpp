#include "tests/support/PlainExtension.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/RecordingPlugin.h"
#include "tests/support/TestMain.h"

#include <TvkPluginsManager.h>
#include <TvkProfile.h>
#include <TvkProfileSetting.h>

#include <Inventor/fields/SoSFFloat.h>

#include <memory>

namespace {

/** Says who it is; one for extensions and plug-ins, which keep the same four texts. */
template <class Base>
class Named : public Base
{
public:
    Named()
    {
        this->m_name = "a name";
        this->m_description = "a description";
        this->m_vendor = "a vendor";
        this->m_version = "1.2.3";
    }
};

class PlainManager : public TvkPluginsManager
{
public:
    PlainManager() { setInstance(this); }
    std::vector<TvkProfile*> getProfilesList() const override { return {}; }
    TvkProfile* getActiveProfile() const override { return nullptr; }
    void setActiveProfile(TvkProfile*) override {}
};

template <class Service, class Implementation>
void checkInstance()
{
    QCOMPARE(Service::getInstance(), nullptr);
    auto first = std::make_unique<Implementation>();
    QCOMPARE(Service::getInstance(), first.get());
    auto second = std::make_unique<Implementation>();
    QCOMPARE(Service::getInstance(), second.get());
    first.reset();
    QCOMPARE(Service::getInstance(), second.get());
    second.reset();
    QCOMPARE(Service::getInstance(), nullptr);
}

template <class Identified>
void checkIdentity(const Identified& object)
{
    QCOMPARE(object.getName().getString(), "a name");
    QCOMPARE(object.getDescription().getString(), "a description");
    QCOMPARE(object.getVendor().getString(), "a vendor");
    QCOMPARE(object.getVersion().getString(), "1.2.3");
}

} // namespace

/** What the base classes of the host interface do by themselves. */
class tst_HostInterface : public QObject
{
    Q_OBJECT

private slots:
    void anExtensionKeepsItsIdentity();
    void aPluginKeepsItsIdentity();
    void anExtensionKnowsWhetherItIsActive();
    void anExtensionKnowsWhetherItIsShown();
    void anExtensionHasNoSettingUntilItIsGivenOne();
    void aPluginListsItsExtensionsInTheOrderOfAddition();
    void aPluginIsLoadedBetweenLoadAndUnload();
    void anUnloadedPluginForgetsItsExtensions();
    void aCommandKnowsItsField();
    void aProfileKnowsItsName();
    void theServicesAreNoneOnceTheyDied();
    void theShellIsNoneOnceItDied();
    void theManagerIsNoneOnceItDied();
};

void tst_HostInterface::anExtensionKeepsItsIdentity()
{
    checkIdentity(Named<PlainExtension>());
}

void tst_HostInterface::aPluginKeepsItsIdentity()
{
    checkIdentity(Named<TvkPlugin>());
}

void tst_HostInterface::anExtensionKnowsWhetherItIsActive()
{
    PlainExtension extension;
    QVERIFY(!extension.isActive());
    extension.activate();
    QVERIFY(extension.isActive());
    QVERIFY(!extension.isShown());
    extension.deactivate();
    QVERIFY(!extension.isActive());
}

void tst_HostInterface::anExtensionKnowsWhetherItIsShown()
{
    PlainExtension extension;
    QVERIFY(!extension.isShown());
    extension.show();
    QVERIFY(extension.isShown());
    QVERIFY(!extension.isActive());
    extension.hide();
    QVERIFY(!extension.isShown());
}

void tst_HostInterface::anExtensionHasNoSettingUntilItIsGivenOne()
{
    PlainExtension extension;
    QCOMPARE(extension.getProfileSetting(), nullptr);
    TvkProfileSetting setting;
    extension.setProfileSetting(&setting);
    QCOMPARE(extension.getProfileSetting(), &setting);
}

void tst_HostInterface::aPluginListsItsExtensionsInTheOrderOfAddition()
{
    PlainExtension first;
    PlainExtension second;
    TvkPlugin plugin;
    plugin.addExtension(&second);
    plugin.addExtension(&first);
    QCOMPARE(plugin.getExtensions(), (std::vector<TvkExtension*>{&second, &first}));
}

void tst_HostInterface::aPluginIsLoadedBetweenLoadAndUnload()
{
    TvkPlugin plugin;
    QVERIFY(!plugin.isLoaded());
    plugin.load();
    QVERIFY(plugin.isLoaded());
    plugin.unload();
    QVERIFY(!plugin.isLoaded());
}

void tst_HostInterface::anUnloadedPluginForgetsItsExtensions()
{
    PlainExtension extension;
    QStringList log;
    RecordingPlugin plugin("plugin", {&extension}, log);
    plugin.load();
    plugin.unload();
    QVERIFY(plugin.getExtensions().empty());
    plugin.load();
    QCOMPARE(plugin.getExtensions().size(), std::size_t(1));
}

void tst_HostInterface::aCommandKnowsItsField()
{
    class Command : public TvkCommand
    {
    public:
        explicit Command(SoField* field) : TvkCommand(field) {}
        Command() = default;
        void execute() override {}
        void undo() override {}
        void redo() override {}
    };
    SoSFFloat field;
    QCOMPARE(Command(&field).getField(), &field);
    QCOMPARE(Command().getField(), nullptr);
}

void tst_HostInterface::aProfileKnowsItsName()
{
    QCOMPARE(TvkProfile("Default").getName().getString(), "Default");
}

void tst_HostInterface::theServicesAreNoneOnceTheyDied()
{
    checkInstance<TvkServices, RecordingServices>();
}

void tst_HostInterface::theShellIsNoneOnceItDied()
{
    checkInstance<TvkShell, RecordingShell>();
}

void tst_HostInterface::theManagerIsNoneOnceItDied()
{
    checkInstance<TvkPluginsManager, PlainManager>();
}

TAVRIK_TEST_MAIN(tst_HostInterface)
#include "tst_HostInterface.moc"
