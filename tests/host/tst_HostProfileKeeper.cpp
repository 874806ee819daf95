#include "tests/host/DockExtension.h"
#include "tests/host/WindowOnCone.h"
#include "tests/support/RecordingPlugin.h"
#include "tests/support/TestMain.h"

#include <Inventor/nodes/SoCone.h>

#include <QTableView>
#include <QTreeView>

/** The profiles in a window: where docks stand, what they are told, what the next run finds. */
class tst_HostProfileKeeper : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_session.finish(); }

    void eachProfileKeepsItsOwnLayout();
    void aNewProfileTakesTheLayoutOver();
    void aDockThatALayoutDoesNotKnowFindsItsPlace();
    void aDockThatTheUserHasHiddenStaysHidden();
    void resettingTheLayoutConcernsTheActiveProfileOnly();
    void resettingBringsAPluginsDockBackToItsArea();
    void resettingDocksWhatFloats();
    void resettingIsTheSameWhicheverProfileCameFirst();

    void theSelectionStays();
    void aDockThatComesIsToldTheSelection();
    void aDockThatComesIsToldThatNothingIsSelected();

    void everythingSurvivesARestart();
    void renamingAndRemovingSurviveARestart();
    void whatIsNotLoadedIsKeptForTheNextRun();
    void aWindowThatHasNotReadProfilesStoresNone();

private:
    HostPluginsManager& manager() { return m_session->pluginsManager(); }
    HostProfile& create(const QString& name, const QSet<QString>& extensions)
    {
        manager().createProfile(name, {extensions, {}});
        return manager().activeProfile();
    }
    void choose(const QString& name) { manager().chooseProfile(*manager().profiles().find(name)); }
    Qt::DockWidgetArea area(const DockExtension& extension)
    {
        return m_session->dockWidgetArea(extension.dock);
    }
    void move(const DockExtension& extension, Qt::DockWidgetArea to)
    {
        m_session->addDockWidget(to, extension.dock);
    }
    void closeAndRestart()
    {
        QVERIFY(m_session->close());
        m_session.restart();
    }

    QStringList m_log;
    DockExtension m_right{"right", Qt::RightDockWidgetArea, m_log};
    DockExtension m_bottom{"bottom", Qt::BottomDockWidgetArea, m_log};
    RecordingPlugin m_plugin{"plugin", {&m_right, &m_bottom}, m_log};
    WindowOnCone m_session;
};

void tst_HostProfileKeeper::init()
{
    m_session.setPlugin(&m_plugin);
    m_session.start();
    m_log.clear();
}

void tst_HostProfileKeeper::eachProfileKeepsItsOwnLayout()
{
    create("Mine", {"/right"});
    QVERIFY(!m_bottom.dock->parent());
    move(m_right, Qt::LeftDockWidgetArea);
    choose("Default");
    QCOMPARE(area(m_right), Qt::RightDockWidgetArea);
    QCOMPARE(area(m_bottom), Qt::BottomDockWidgetArea);
    QVERIFY(m_bottom.dock->isVisible());
    choose("Mine");
    QCOMPARE(area(m_right), Qt::LeftDockWidgetArea);
}

void tst_HostProfileKeeper::aNewProfileTakesTheLayoutOver()
{
    move(m_right, Qt::TopDockWidgetArea);
    create("Mine", {"/right"});
    QCOMPARE(area(m_right), Qt::TopDockWidgetArea);
}

void tst_HostProfileKeeper::aDockThatALayoutDoesNotKnowFindsItsPlace()
{
    HostProfile& mine = create("Mine", {"/right"});
    choose("Default");
    choose("Mine");
    manager().changeProfile(mine, "Mine", {{"/right", "/bottom"}, {}});
    QCOMPARE(area(m_bottom), Qt::BottomDockWidgetArea);
    QVERIFY(m_bottom.dock->isVisible());
}

void tst_HostProfileKeeper::aDockThatTheUserHasHiddenStaysHidden()
{
    m_bottom.dock->toggleViewAction()->trigger();
    QVERIFY(m_bottom.dock->isHidden());
    create("Mine", {});
    choose("Default");
    QVERIFY(m_bottom.dock->isHidden());
    QVERIFY(m_right.dock->isVisible());
}

void tst_HostProfileKeeper::resettingTheLayoutConcernsTheActiveProfileOnly()
{
    move(m_right, Qt::TopDockWidgetArea);
    create("Mine", {"/right"});
    m_session->resetLayout();
    QCOMPARE(area(m_right), Qt::RightDockWidgetArea);
    choose("Default");
    QCOMPARE(area(m_right), Qt::TopDockWidgetArea);
}

void tst_HostProfileKeeper::resettingBringsAPluginsDockBackToItsArea()
{
    move(m_bottom, Qt::LeftDockWidgetArea);
    m_bottom.dock->hide();
    m_session->resetLayout();
    QCOMPARE(area(m_bottom), Qt::BottomDockWidgetArea);
    QVERIFY(m_bottom.dock->isVisible());
}

void tst_HostProfileKeeper::resettingDocksWhatFloats()
{
    m_right.dock->setFloating(true);
    m_session.child<QDockWidget>("sceneDock")->setFloating(true);
    m_session->resetLayout();
    QVERIFY(!m_right.dock->isFloating());
    QVERIFY(!m_session.child<QDockWidget>("sceneDock")->isFloating());
}

void tst_HostProfileKeeper::resettingIsTheSameWhicheverProfileCameFirst()
{
    QVERIFY(QTest::qWaitForWindowExposed(&*m_session));
    m_session->resetLayout();
    QTest::qWait(100); // the docks find their places in the event loop
    const QRect scene = m_session.child<QDockWidget>("sceneDock")->geometry();
    create("Mine", {"/right"});
    closeAndRestart();
    QVERIFY(!m_bottom.dock->parent());
    choose("Default");
    m_session->resetLayout();
    QCOMPARE(area(m_bottom), Qt::BottomDockWidgetArea);
    QTRY_COMPARE(m_session.child<QDockWidget>("sceneDock")->geometry(), scene);
}

void tst_HostProfileKeeper::theSelectionStays()
{
    m_session.selectNode("Cone");
    m_session.selectField("height");
    create("Mine", {});
    choose("Default");
    QCOMPARE(m_session->services().selectedNode(), static_cast<SoNode*>(&WindowOnCone::cone()));
    QCOMPARE(m_session->services().selectedField(),
             static_cast<SoField*>(&WindowOnCone::cone().height));
    QCOMPARE(m_session.child<QTableView>("fieldView")->selectionModel()->selectedRows().size(), 1);
    QCOMPARE(m_session.child<QTreeView>("sceneView")->currentIndex().siblingAtColumn(0),
             m_session.row("Cone").siblingAtColumn(0));
}

void tst_HostProfileKeeper::aDockThatComesIsToldTheSelection()
{
    create("Mine", {"/right"});
    m_session.selectNode("Cone");
    m_session.selectField("height");
    choose("Default");
    QCOMPARE(m_bottom.told, QString("Cone, height"));
}

void tst_HostProfileKeeper::aDockThatComesIsToldThatNothingIsSelected()
{
    create("Mine", {"/right"});
    choose("Default");
    QCOMPARE(m_bottom.told, QString("no node, no field"));
}

void tst_HostProfileKeeper::everythingSurvivesARestart()
{
    m_session.child<QDockWidget>("historyDock")->hide();
    create("Mine", {"/bottom"});
    move(m_bottom, Qt::LeftDockWidgetArea);
    create(QString::fromUtf8("Сцена"), {"/right"});
    move(m_right, Qt::TopDockWidgetArea);
    closeAndRestart();
    QCOMPARE(manager().activeProfile().name(), QString::fromUtf8("Сцена"));
    QCOMPARE(area(m_right), Qt::TopDockWidgetArea);
    QVERIFY(!m_bottom.isActive());
    choose("Mine");
    QCOMPARE(area(m_bottom), Qt::LeftDockWidgetArea);
    QVERIFY(!m_right.isActive());
    choose("Default");
    QCOMPARE(area(m_bottom), Qt::BottomDockWidgetArea);
    QCOMPARE(area(m_right), Qt::RightDockWidgetArea);
    QVERIFY(m_session.child<QDockWidget>("historyDock")->isHidden());
}

void tst_HostProfileKeeper::renamingAndRemovingSurviveARestart()
{
    HostProfile& first = create("First", {"/right"});
    HostProfile& second = create("Second", {"/bottom"});
    manager().changeProfile(second, "Third", second.contents);
    manager().removeProfile(first);
    closeAndRestart();
    QCOMPARE(manager().profiles().all().size(), std::size_t(2));
    QCOMPARE(manager().activeProfile().name(), QString("Third"));
    QVERIFY(m_bottom.isActive());
}

void tst_HostProfileKeeper::whatIsNotLoadedIsKeptForTheNextRun()
{
    create("Mine", {"/bottom"});
    m_session.setPlugin(nullptr);
    closeAndRestart();
    QCOMPARE(manager().activeProfile().name(), QString("Mine"));
    choose("Default");
    choose("Mine");
    m_session.setPlugin(&m_plugin);
    closeAndRestart();
    QVERIFY(m_bottom.isActive());
    QVERIFY(!m_right.isActive());
}

void tst_HostProfileKeeper::aWindowThatHasNotReadProfilesStoresNone()
{
    create("Mine", {"/bottom"});
    QVERIFY(m_session->close());
    m_session.finish();
    {
        HostMainWindow window;
        window.restoreLayout();
        QCOMPARE(window.pluginsManager().profiles().all().size(), std::size_t(1));
        window.pluginsManager().createProfile("Passing", {});
        QVERIFY(window.close());
    }
    m_session.restart();
    QCOMPARE(manager().activeProfile().name(), QString("Mine"));
    QVERIFY(!manager().profiles().find(QString("Passing")));
}

TAVRIK_TEST_MAIN(tst_HostProfileKeeper)
#include "tst_HostProfileKeeper.moc"
