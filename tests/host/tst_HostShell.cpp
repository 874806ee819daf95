#include "lib/HostShell.h"

#include "tests/support/RecordingExtension.h"
#include "tests/support/TestMain.h"

#include <QMainWindow>

#include <memory>

class SoFieldContainer;

/** Follows the selected node, as the docks for editors do. */
class FollowingExtension : public RecordingExtension
{
    Q_OBJECT

public:
    using RecordingExtension::RecordingExtension;

public slots:
    void s_selectedNodeChanged(SoFieldContainer*) {}
};

class tst_HostShell : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void itIsTheShellOfTheProcess();

    void anAddedDockStandsInTheWindow();
    void aHiddenDockStaysHidden();
    void aShownDockStaysShown();
    void addingADockTwiceDoesNoHarm();
    void aRemovedDockIsHiddenAndHasNoParent();
    void removingADockThatWasNeverAddedLeavesItAlone();
    void aRemovedDockCanBeAddedAgain();
    void aDockDeletedByItsOwnerIsForgotten();
    void aDockWithoutObjectNameGetsItsTitle();
    void anObjectNameIsNeverChanged();
    void docksOfTheSameTitleGetDifferentNames();
    void thePlacesOfNamelessDocksAreSaved();
    void theAreaThatAnExtensionWantedIsRemembered();
    void nullIsIgnored();

    void anAddedToolBarStandsInTheWindow();
    void aHiddenToolBarStaysHidden();
    void aRemovedToolBarIsHiddenAndHasNoParent();
    void aToolBarDeletedByItsOwnerIsForgotten();

    void activeExtensionsAreKeptInTheirOrder();
    void anExtensionRegisteredTwiceIsThereOnce();
    void anExtensionRegisteredAsInactiveIsNotActive();
    void aDestroyedExtensionIsForgotten();
    void unregisteringAnUnknownExtensionDoesNothing();
    void aDockIsFoundByASlotOfItsExtension();
    void aDockOfAnUnregisteredExtensionIsNotFound();

private:
    using Docks = std::vector<QDockWidget*>;
    using Extensions = std::vector<TvkExtension*>;

    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<HostShell> m_shell;
    QStringList m_log;
};

void tst_HostShell::init()
{
    m_window = std::make_unique<QMainWindow>();
    m_shell = std::make_unique<HostShell>(*m_window);
}

void tst_HostShell::cleanup()
{
    m_shell.reset();
    m_window.reset();
}

void tst_HostShell::itIsTheShellOfTheProcess()
{
    QCOMPARE(TvkShell::getInstance(), m_shell.get());
    m_shell.reset();
    QCOMPARE(TvkShell::getInstance(), nullptr);
}

void tst_HostShell::anAddedDockStandsInTheWindow()
{
    QDockWidget dock("Dock");
    m_shell->addDockWidget(&dock, Qt::BottomDockWidgetArea);
    QCOMPARE(m_window->dockWidgetArea(&dock), Qt::BottomDockWidgetArea);
    QCOMPARE(m_shell->docks(), Docks{&dock});
}

void tst_HostShell::aHiddenDockStaysHidden()
{
    QDockWidget dock("Dock");
    dock.hide();
    m_shell->addDockWidget(&dock, Qt::RightDockWidgetArea);
    m_window->show();
    QVERIFY(dock.isHidden());
    dock.show();
    QVERIFY(dock.isVisible());
}

void tst_HostShell::aShownDockStaysShown()
{
    QDockWidget dock("Dock");
    dock.show();
    m_shell->addDockWidget(&dock, Qt::RightDockWidgetArea);
    m_window->show();
    QVERIFY(dock.isVisible());
    QVERIFY(!dock.isWindow());
}

void tst_HostShell::addingADockTwiceDoesNoHarm()
{
    QDockWidget dock("Dock");
    m_shell->addDockWidget(&dock, Qt::BottomDockWidgetArea);
    m_shell->addDockWidget(&dock, Qt::RightDockWidgetArea);
    QCOMPARE(m_window->dockWidgetArea(&dock), Qt::RightDockWidgetArea);
    QCOMPARE(m_shell->docks(), Docks{&dock});
}

void tst_HostShell::aRemovedDockIsHiddenAndHasNoParent()
{
    QDockWidget dock("Dock");
    m_shell->addDockWidget(&dock, Qt::RightDockWidgetArea);
    m_window->show();
    dock.show();
    m_shell->removeDockWidget(&dock);
    QVERIFY(dock.isHidden());
    QCOMPARE(dock.parent(), nullptr);
    QCOMPARE(m_window->dockWidgetArea(&dock), Qt::NoDockWidgetArea);
    QVERIFY(m_shell->docks().empty());
}

void tst_HostShell::removingADockThatWasNeverAddedLeavesItAlone()
{
    QWidget parent;
    auto* dock = new QDockWidget("Dock", &parent);
    m_shell->removeDockWidget(dock);
    QCOMPARE(dock->parent(), &parent);
}

void tst_HostShell::aRemovedDockCanBeAddedAgain()
{
    QDockWidget dock("Dock");
    m_shell->addDockWidget(&dock, Qt::RightDockWidgetArea);
    m_shell->removeDockWidget(&dock);
    m_shell->addDockWidget(&dock, Qt::BottomDockWidgetArea);
    QCOMPARE(m_window->dockWidgetArea(&dock), Qt::BottomDockWidgetArea);
}

void tst_HostShell::aDockDeletedByItsOwnerIsForgotten()
{
    auto dock = std::make_unique<QDockWidget>("Dock");
    QDockWidget other("Other");
    m_shell->addDockWidget(dock.get(), Qt::RightDockWidgetArea);
    m_shell->addDockWidget(&other, Qt::RightDockWidgetArea);
    dock.reset();
    QCOMPARE(m_shell->docks(), Docks{&other});
    m_shell->removeDockWidget(&other);
    QVERIFY(m_shell->docks().empty());
}

void tst_HostShell::aDockWithoutObjectNameGetsItsTitle()
{
    QDockWidget dock("Field Editor");
    m_shell->addDockWidget(&dock, Qt::RightDockWidgetArea);
    QCOMPARE(dock.objectName(), QString("Field Editor"));
}

void tst_HostShell::anObjectNameIsNeverChanged()
{
    QDockWidget dock("Field Editor");
    dock.setObjectName("mine");
    m_shell->addDockWidget(&dock, Qt::RightDockWidgetArea);
    QCOMPARE(dock.objectName(), QString("mine"));
}

void tst_HostShell::docksOfTheSameTitleGetDifferentNames()
{
    QDockWidget first("Dock");
    QDockWidget second("Dock");
    QDockWidget untitled;
    m_shell->addDockWidget(&first, Qt::RightDockWidgetArea);
    m_shell->addDockWidget(&second, Qt::RightDockWidgetArea);
    m_shell->addDockWidget(&untitled, Qt::RightDockWidgetArea);
    QCOMPARE(second.objectName(), QString("Dock 2"));
    QCOMPARE(untitled.objectName(), QString("QDockWidget"));
}

void tst_HostShell::thePlacesOfNamelessDocksAreSaved()
{
    QDockWidget dock("Dock");
    m_shell->addDockWidget(&dock, Qt::RightDockWidgetArea);
    const QByteArray state = m_window->saveState();
    m_shell->addDockWidget(&dock, Qt::LeftDockWidgetArea);
    QVERIFY(m_window->restoreState(state));
    QCOMPARE(m_window->dockWidgetArea(&dock), Qt::RightDockWidgetArea);
}

void tst_HostShell::theAreaThatAnExtensionWantedIsRemembered()
{
    QDockWidget dock("Dock");
    QToolBar toolBar("Bar");
    m_shell->addDockWidget(&dock, Qt::BottomDockWidgetArea);
    m_shell->addToolBar(&toolBar, Qt::LeftToolBarArea);
    m_window->addDockWidget(Qt::TopDockWidgetArea, &dock);
    m_window->addToolBar(Qt::TopToolBarArea, &toolBar);
    QCOMPARE(m_shell->area(dock), Qt::BottomDockWidgetArea);
    QCOMPARE(m_shell->area(toolBar), Qt::LeftToolBarArea);
}

void tst_HostShell::nullIsIgnored()
{
    m_shell->addDockWidget(nullptr, Qt::RightDockWidgetArea);
    m_shell->removeDockWidget(nullptr);
    m_shell->addToolBar(nullptr, Qt::TopToolBarArea);
    m_shell->removeToolBar(nullptr);
    m_shell->registerExtension(nullptr, true);
    m_shell->unregisterExtension(nullptr);
    QVERIFY(m_shell->docks().empty());
    QVERIFY(m_shell->toolBars().empty());
    QVERIFY(m_shell->activeExtensions().empty());
}

void tst_HostShell::anAddedToolBarStandsInTheWindow()
{
    QToolBar toolBar("Bar");
    m_shell->addToolBar(&toolBar, Qt::TopToolBarArea);
    m_shell->addToolBar(&toolBar, Qt::TopToolBarArea);
    QCOMPARE(m_window->toolBarArea(&toolBar), Qt::TopToolBarArea);
    QCOMPARE(m_shell->toolBars(), std::vector<QToolBar*>{&toolBar});
    QCOMPARE(toolBar.objectName(), QString("Bar"));
}

void tst_HostShell::aHiddenToolBarStaysHidden()
{
    QToolBar toolBar("Bar");
    toolBar.hide();
    m_shell->addToolBar(&toolBar, Qt::TopToolBarArea);
    m_window->show();
    QVERIFY(toolBar.isHidden());
}

void tst_HostShell::aRemovedToolBarIsHiddenAndHasNoParent()
{
    QToolBar toolBar("Bar");
    m_shell->addToolBar(&toolBar, Qt::TopToolBarArea);
    m_window->show();
    toolBar.show();
    m_shell->removeToolBar(&toolBar);
    QVERIFY(toolBar.isHidden());
    QCOMPARE(toolBar.parent(), nullptr);
    QVERIFY(m_shell->toolBars().empty());
}

void tst_HostShell::aToolBarDeletedByItsOwnerIsForgotten()
{
    auto toolBar = std::make_unique<QToolBar>("Bar");
    m_shell->addToolBar(toolBar.get(), Qt::TopToolBarArea);
    toolBar.reset();
    QVERIFY(m_shell->toolBars().empty());
}

void tst_HostShell::activeExtensionsAreKeptInTheirOrder()
{
    RecordingExtension first("first", m_log);
    RecordingExtension second("second", m_log);
    m_shell->registerExtension(&second, true);
    m_shell->registerExtension(&first, true);
    QCOMPARE(m_shell->activeExtensions(), (Extensions{&second, &first}));
    m_shell->unregisterExtension(&second);
    QCOMPARE(m_shell->activeExtensions(), Extensions{&first});
}

void tst_HostShell::anExtensionRegisteredTwiceIsThereOnce()
{
    RecordingExtension extension("dock", m_log);
    m_shell->registerExtension(&extension, true);
    m_shell->registerExtension(&extension, true);
    QCOMPARE(m_shell->activeExtensions(), Extensions{&extension});
}

void tst_HostShell::anExtensionRegisteredAsInactiveIsNotActive()
{
    RecordingExtension extension("dock", m_log);
    m_shell->registerExtension(&extension, true);
    m_shell->registerExtension(&extension, false);
    QVERIFY(m_shell->activeExtensions().empty());
}

void tst_HostShell::aDestroyedExtensionIsForgotten()
{
    auto extension = std::make_unique<RecordingExtension>("dock", m_log);
    m_shell->registerExtension(extension.get(), true);
    extension.reset();
    QVERIFY(m_shell->activeExtensions().empty());
}

void tst_HostShell::unregisteringAnUnknownExtensionDoesNothing()
{
    RecordingExtension known("known", m_log);
    RecordingExtension unknown("unknown", m_log);
    m_shell->registerExtension(&known, true);
    m_shell->unregisterExtension(&unknown);
    QCOMPARE(m_shell->activeExtensions(), Extensions{&known});
}

void tst_HostShell::aDockIsFoundByASlotOfItsExtension()
{
    QDockWidget other;
    QDockWidget dock;
    RecordingExtension bystander("bystander", m_log);
    FollowingExtension follower("follower", m_log);
    m_shell->addDockWidget(&other, Qt::RightDockWidgetArea);
    m_shell->registerExtension(&bystander, true);
    m_shell->addDockWidget(&dock, Qt::RightDockWidgetArea);
    m_shell->registerExtension(&follower, true);
    QCOMPARE(m_shell->dockWithSlot("s_selectedNodeChanged(SoFieldContainer*)"), &dock);
    QCOMPARE(m_shell->dockWithSlot("s_selectedFieldChanged(SoField*)"), nullptr);
}

void tst_HostShell::aDockOfAnUnregisteredExtensionIsNotFound()
{
    QDockWidget dock;
    FollowingExtension follower("follower", m_log);
    m_shell->addDockWidget(&dock, Qt::RightDockWidgetArea);
    m_shell->registerExtension(&follower, true);
    m_shell->removeDockWidget(&dock);
    m_shell->unregisterExtension(&follower);
    QCOMPARE(m_shell->dockWithSlot("s_selectedNodeChanged(SoFieldContainer*)"), nullptr);
    m_shell->registerExtension(&follower, true); // a tool bar's would have none either
    QCOMPARE(m_shell->dockWithSlot("s_selectedNodeChanged(SoFieldContainer*)"), nullptr);
}

TAVRIK_TEST_MAIN(tst_HostShell)
#include "tst_HostShell.moc"
