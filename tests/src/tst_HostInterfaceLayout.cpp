#include "tests/support/PlainExtension.h"
#include "tests/support/SlotOrder.h"
#include "tests/support/TestMain.h"

#include <TvkCommand.h>
#include <TvkEditor.h>
#include <TvkPlugin.h>
#include <TvkPluginsManager.h>
#include <TvkServices.h>
#include <TvkShell.h>

namespace {

/** What a subclass adds first comes after all that its base has. */
template <class Base>
class Extended : public Base
{
public:
    virtual void next() {}
};

template <class Base>
int slotCount()
{
    return slotOf(&Extended<Base>::next);
}

/** A destructor takes two places. */
constexpr int destructor = 2;

} // namespace

/** The order of the virtual operations, which plug-ins built before depend on. */
class tst_HostInterfaceLayout : public QObject
{
    Q_OBJECT

private slots:
    void thePluginsOperationsStandInTheirOrder();
    void theExtensionsOperationsStandInTheirOrder();
    void theEditorsOperationsStandInTheirOrder();
    void theCommandsOperationsStandInTheirOrder();
    void theShellsOperationsStandInTheirOrder();
    void theServicesOperationComesFirst();
    void theManagersOperationsStandInTheirOrder();
};

void tst_HostInterfaceLayout::thePluginsOperationsStandInTheirOrder()
{
    QCOMPARE(slotOf(&TvkPlugin::load), 0);
    QCOMPARE(slotOf(&TvkPlugin::unload), 1);
    QCOMPARE(slotCount<TvkPlugin>(), 2 + destructor);
}

void tst_HostInterfaceLayout::theExtensionsOperationsStandInTheirOrder()
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

void tst_HostInterfaceLayout::theEditorsOperationsStandInTheirOrder()
{
    const int first = slotCount<PlainExtension>();
    QCOMPARE(slotOf(&TvkEditor::getHandledType), first);
    QCOMPARE(slotOf(&TvkEditor::setEditedObject), first + 1);
    QCOMPARE(slotOf(&TvkEditor::getEditedObject), first + 2);
    QCOMPARE(slotOf(&TvkEditor::getWidget), first + 3);
    QCOMPARE(slotCount<TvkEditor>(), first + 4);
}

void tst_HostInterfaceLayout::theCommandsOperationsStandInTheirOrder()
{
    QCOMPARE(slotOf(&TvkCommand::execute), 0);
    QCOMPARE(slotOf(&TvkCommand::undo), 1);
    QCOMPARE(slotOf(&TvkCommand::redo), 2);
    QCOMPARE(slotCount<TvkCommand>(), 3 + destructor);
}

void tst_HostInterfaceLayout::theShellsOperationsStandInTheirOrder()
{
    const int first = slotOf(&TvkShell::addDockWidget);
    QVERIFY(first >= 0);
    QCOMPARE(slotOf(&TvkShell::removeDockWidget), first + 1);
    QCOMPARE(slotOf(&TvkShell::registerExtension), first + 2);
    QCOMPARE(slotOf(&TvkShell::unregisterExtension), first + 3);
    QCOMPARE(slotOf(&TvkShell::addToolBar), first + 4);
    QCOMPARE(slotOf(&TvkShell::removeToolBar), first + 5);
}

void tst_HostInterfaceLayout::theServicesOperationComesFirst()
{
    QCOMPARE(slotOf(&TvkServices::pushCommand), slotCount<QObject>());
}

void tst_HostInterfaceLayout::theManagersOperationsStandInTheirOrder()
{
    const int first = slotOf(&TvkPluginsManager::getProfilesList);
    QVERIFY(first >= 0);
    QCOMPARE(slotOf(&TvkPluginsManager::getActiveProfile), first + 1);
    QCOMPARE(slotOf(&TvkPluginsManager::setActiveProfile), first + 2);
}

TAVRIK_TEST_MAIN(tst_HostInterfaceLayout)
#include "tst_HostInterfaceLayout.moc"
