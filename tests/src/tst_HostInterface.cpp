#include "tests/support/RecordingEditor.h"
#include "tests/support/RecordingExtension.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/RecordingPlugin.h"
#include "tests/support/TestMain.h"

#include <TvkPluginsManager.h>
#include <TvkProfile.h>
#include <TvkProfileSetting.h>

#include <Inventor/nodes/SoCone.h>

#include <cstring>
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

class PlainExtension : public TvkExtension
{
public:
    void createWidgets() override {}
    void releaseWidgets() override {}
};

class PlainManager : public TvkPluginsManager
{
public:
    PlainManager() { setInstance(this); }
    std::vector<TvkProfile*> getProfilesList() const override { return {}; }
    TvkProfile* getActiveProfile() const override { return nullptr; }
    void setActiveProfile(TvkProfile*) override {}
};

/** What a subclass adds first comes after all that its base has. */
template <class Base>
class Extended : public Base
{
public:
    virtual void next() {}
};

/**
 * The place of an operation in its class's table of virtual operations. On this platform a pointer
 * to a virtual member function holds its offset in that table, plus one.
 */
template <class Function>
int slotOf(Function function)
{
    std::ptrdiff_t value = 0;
    std::memcpy(&value, &function, sizeof value);
    return value % 8 == 1 ? static_cast<int>(value / 8) : -1;
}

template <class Base>
int slotCount()
{
    return slotOf(&Extended<Base>::next);
}

/** A destructor takes two places. */
constexpr int destructor = 2;

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
} // namespace

/** The host interface: what its base classes do by themselves, and how they are laid out. */
class tst_HostInterface : public QObject
{
    Q_OBJECT

private slots:
    void init();

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

    void anEditorHasNoEditedObjectAtFirst();
    void anEditorKeepsItsOwnCopyOfTheHandle();
    void anEditorMayBeGivenItsOwnHandle();
    void aHandleOfNothingIsNoEditedObject();
    void nullTakesTheEditedObjectAway();
    void anEditorAnswersItsHandledType();
    void anEditorWhoseWidgetWasDeletedHasNone();

    void aSettingControlsNothingAtFirst();
    void controlledExtensionsAreOrderedByAddress();
    void controllingAgainReplacesTheSetting();
    void aReleasedExtensionIsNoLongerControlled();

    void theServicesAreNoneOnceTheyDied();
    void theShellIsNoneOnceItDied();
    void theManagerIsNoneOnceItDied();

    void thePluginsOperationsStandInTheirOrder();
    void theExtensionsOperationsStandInTheirOrder();
    void theEditorsOperationsStandInTheirOrder();
    void theCommandsOperationsStandInTheirOrder();
    void theShellsOperationsStandInTheirOrder();
    void theServicesOperationComesFirst();
    void theManagersOperationsStandInTheirOrder();

private:
    template <class Identified>
    static void checkIdentity(const Identified& object);

    QStringList m_log;
};

void tst_HostInterface::init()
{
    m_log.clear();
}

template <class Identified>
void tst_HostInterface::checkIdentity(const Identified& object)
{
    QCOMPARE(object.getName().getString(), "a name");
    QCOMPARE(object.getDescription().getString(), "a description");
    QCOMPARE(object.getVendor().getString(), "a vendor");
    QCOMPARE(object.getVersion().getString(), "1.2.3");
}

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
    RecordingPlugin plugin("plugin", {&extension}, m_log);
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

void tst_HostInterface::anEditorHasNoEditedObjectAtFirst()
{
    const RecordingEditor editor("editor", SoSFFloat::getClassTypeId(), m_log);
    QCOMPARE(editor.getEditedObject(), nullptr);
}

void tst_HostInterface::anEditorKeepsItsOwnCopyOfTheHandle()
{
    RecordingEditor editor("editor", SoSFFloat::getClassTypeId(), m_log);
    SoSFFloat field;
    {
        SoTypedObject object(&field);
        editor.setEditedObject(&object);
        QVERIFY(editor.getEditedObject() != &object);
    }
    QVERIFY(editor.getEditedObject());
    QCOMPARE(editor.getEditedObject()->getField(), &field);
}

void tst_HostInterface::anEditorMayBeGivenItsOwnHandle()
{
    RecordingEditor editor("editor", SoSFFloat::getClassTypeId(), m_log);
    SoSFFloat field;
    SoTypedObject object(&field);
    editor.setEditedObject(&object);
    editor.setEditedObject(editor.getEditedObject());
    QVERIFY(editor.getEditedObject());
    QCOMPARE(editor.getEditedObject()->getField(), &field);
}

void tst_HostInterface::aHandleOfNothingIsNoEditedObject()
{
    RecordingEditor editor("editor", SoSFFloat::getClassTypeId(), m_log);
    SoTypedObject nothing;
    editor.setEditedObject(&nothing);
    QCOMPARE(editor.getEditedObject(), nullptr);
}

void tst_HostInterface::nullTakesTheEditedObjectAway()
{
    RecordingEditor editor("editor", SoSFFloat::getClassTypeId(), m_log);
    SoSFFloat field;
    SoTypedObject object(&field);
    editor.setEditedObject(&object);
    editor.setEditedObject(nullptr);
    QCOMPARE(editor.getEditedObject(), nullptr);
}

void tst_HostInterface::anEditorAnswersItsHandledType()
{
    RecordingEditor editor("editor", SoCone::getClassTypeId(), m_log);
    QVERIFY(editor.getHandledType() == SoCone::getClassTypeId());
}

void tst_HostInterface::anEditorWhoseWidgetWasDeletedHasNone()
{
    const RecordingEditor editor("editor", SoSFFloat::getClassTypeId(), m_log);
    QVERIFY(editor.getWidget());
    delete editor.getWidget();
    QCOMPARE(editor.getWidget(), nullptr);
}

void tst_HostInterface::aSettingControlsNothingAtFirst()
{
    QVERIFY(TvkProfileSetting().getControlledExtensions().empty());
}

void tst_HostInterface::controlledExtensionsAreOrderedByAddress()
{
    PlainExtension extensions[3];
    TvkProfileSetting setting;
    setting.control(&extensions[1]);
    setting.control(&extensions[2]);
    setting.control(&extensions[0]);
    std::vector<TvkExtension*> keys;
    for (const auto& [extension, own] : setting.getControlledExtensions())
        keys.push_back(extension);
    QCOMPARE(keys, (std::vector<TvkExtension*>{&extensions[0], &extensions[1], &extensions[2]}));
}

void tst_HostInterface::controllingAgainReplacesTheSetting()
{
    PlainExtension extension;
    TvkProfileSetting setting;
    TvkProfileSetting own;
    setting.control(&extension);
    QCOMPARE(setting.getControlledExtensions().at(&extension), nullptr);
    setting.control(&extension, &own);
    QCOMPARE(setting.getControlledExtensions().at(&extension), &own);
    QCOMPARE(setting.getControlledExtensions().size(), std::size_t(1));
}

void tst_HostInterface::aReleasedExtensionIsNoLongerControlled()
{
    PlainExtension extension;
    PlainExtension other;
    TvkProfileSetting setting;
    setting.control(&extension);
    setting.release(&other);
    QCOMPARE(setting.getControlledExtensions().size(), std::size_t(1));
    setting.release(&extension);
    QVERIFY(setting.getControlledExtensions().empty());
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

void tst_HostInterface::thePluginsOperationsStandInTheirOrder()
{
    QCOMPARE(slotOf(&TvkPlugin::load), 0);
    QCOMPARE(slotOf(&TvkPlugin::unload), 1);
    QCOMPARE(slotCount<TvkPlugin>(), 2 + destructor);
}

void tst_HostInterface::theExtensionsOperationsStandInTheirOrder()
{
    const int first = slotCount<QObject>();
    QCOMPARE(slotOf(&TvkExtension::activate), first);
    QCOMPARE(slotOf(&TvkExtension::deactivate), first + 1);
    QCOMPARE(slotOf(&TvkExtension::hide), first + 2);
    QCOMPARE(slotOf(&TvkExtension::createWidgets), first + 3);
    QCOMPARE(slotOf(&TvkExtension::show), first + 4);
    QCOMPARE(slotOf(&TvkExtension::releaseWidgets), first + 5);
    QCOMPARE(slotCount<PlainExtension>(), first + 6);
}

void tst_HostInterface::theEditorsOperationsStandInTheirOrder()
{
    const int first = slotCount<PlainExtension>();
    QCOMPARE(slotOf(&TvkEditor::getHandledType), first);
    QCOMPARE(slotOf(&TvkEditor::setEditedObject), first + 1);
    QCOMPARE(slotOf(&TvkEditor::getEditedObject), first + 2);
    QCOMPARE(slotOf(&TvkEditor::getWidget), first + 3);
    QCOMPARE(slotCount<TvkEditor>(), first + 4);
}

void tst_HostInterface::theCommandsOperationsStandInTheirOrder()
{
    QCOMPARE(slotOf(&TvkCommand::execute), 0);
    QCOMPARE(slotOf(&TvkCommand::undo), 1);
    QCOMPARE(slotOf(&TvkCommand::redo), 2);
    QCOMPARE(slotCount<TvkCommand>(), 3 + destructor);
}

void tst_HostInterface::theShellsOperationsStandInTheirOrder()
{
    const int first = slotOf(&TvkShell::addDockWidget);
    QVERIFY(first >= 0);
    QCOMPARE(slotOf(&TvkShell::removeDockWidget), first + 1);
    QCOMPARE(slotOf(&TvkShell::registerExtension), first + 2);
    QCOMPARE(slotOf(&TvkShell::unregisterExtension), first + 3);
    QCOMPARE(slotOf(&TvkShell::addToolBar), first + 4);
    QCOMPARE(slotOf(&TvkShell::removeToolBar), first + 5);
}

void tst_HostInterface::theServicesOperationComesFirst()
{
    QCOMPARE(slotOf(&TvkServices::pushCommand), slotCount<QObject>());
}

void tst_HostInterface::theManagersOperationsStandInTheirOrder()
{
    const int first = slotOf(&TvkPluginsManager::getProfilesList);
    QVERIFY(first >= 0);
    QCOMPARE(slotOf(&TvkPluginsManager::getActiveProfile), first + 1);
    QCOMPARE(slotOf(&TvkPluginsManager::setActiveProfile), first + 2);
}

TAVRIK_TEST_MAIN(tst_HostInterface)
#include "tst_HostInterface.moc"
