#include "tests/src/ProfileSelector/SelectorRig.h"
#include "tests/support/TestMain.h"

/** The profile selector in every order in which a host may drive it. */
class tst_ProfileSelectorLifecycle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setDoubleClickInterval(20); }

    void activationPlacesTheToolBarAtTheTop();
    void keepsTheBaseForTheEndOfActivation();
    void deactivationTakesTheToolBarOutAgain();
    void theBaseComesFirstAtDeactivation();
    void showingAndHidingReachTheToolBar();
    void activatingTwiceConnectsOnce();
    void deactivatingTwiceTakesOutOnce();
    void deactivatingWithoutActivationAsksForNothing();
    void releasingWithoutBuildingIsHarmless();
    void showingWithoutBuildingIsHarmless();
    void activatingWithoutBuildingAsksForNothing();
    void theWidgetsCanBeBuiltAgain();
    void itsDestructionTakesTheWidgetsAlong();
};

void tst_ProfileSelectorLifecycle::activationPlacesTheToolBarAtTheTop()
{
    SelectorRig rig;
    rig.selector.activate();
    QCOMPARE(rig.shell.calls, (QStringList{"addToolBar \"Profile Selector\" 4",
                                           "registerExtension \"Profile Selector\" true"}));
    QVERIFY(rig.shell.bar->isHidden());
}

void tst_ProfileSelectorLifecycle::keepsTheBaseForTheEndOfActivation()
{
    SelectorRig rig;
    rig.selector.activate();
    QVERIFY(!rig.shell.wasActive);
    QVERIFY(rig.selector.isActive());
}

void tst_ProfileSelectorLifecycle::deactivationTakesTheToolBarOutAgain()
{
    SelectorRig rig;
    rig.activate();
    rig.shell.calls.clear();
    rig.selector.deactivate();
    QCOMPARE(rig.shell.calls, (QStringList{"removeToolBar \"Profile Selector\"",
                                           "unregisterExtension \"Profile Selector\""}));
}

void tst_ProfileSelectorLifecycle::theBaseComesFirstAtDeactivation()
{
    SelectorRig rig;
    rig.activate();
    rig.shell.wasActive = true;
    rig.selector.deactivate();
    QVERIFY(!rig.shell.wasActive);
}

void tst_ProfileSelectorLifecycle::showingAndHidingReachTheToolBar()
{
    SelectorRig rig;
    rig.activate();
    QVERIFY(rig.shell.bar->isVisible());
    QVERIFY(rig.selector.isShown());
    rig.selector.hide();
    QVERIFY(rig.shell.bar->isHidden());
    QVERIFY(!rig.selector.isShown());
}

void tst_ProfileSelectorLifecycle::activatingTwiceConnectsOnce()
{
    SelectorRig rig;
    rig.activate();
    rig.activate();
    QCOMPARE(rig.manager.choices, 0);
    QCOMPARE(rig.combo().count(), 3);
    rig.choose(2);
    QCOMPARE(rig.manager.choices, 1);
    QCOMPARE(rig.combo().count(), 6);
}

void tst_ProfileSelectorLifecycle::deactivatingTwiceTakesOutOnce()
{
    SelectorRig rig;
    rig.activate();
    rig.selector.deactivate();
    rig.selector.deactivate();
    QCOMPARE(rig.shell.calls.filter("removeToolBar").size(), 1);
}

void tst_ProfileSelectorLifecycle::deactivatingWithoutActivationAsksForNothing()
{
    SelectorRig rig;
    rig.selector.deactivate();
    QVERIFY(rig.shell.calls.isEmpty());
}

void tst_ProfileSelectorLifecycle::releasingWithoutBuildingIsHarmless()
{
    RecordingHost host;
    TvkProfileSelectorExtension selector;
    selector.releaseWidgets();
    selector.deactivate();
    selector.releaseWidgets();
    QVERIFY(host.shell.calls.isEmpty());
}

void tst_ProfileSelectorLifecycle::showingWithoutBuildingIsHarmless()
{
    TvkProfileSelectorExtension selector;
    selector.show();
    QVERIFY(selector.isShown());
    selector.hide();
    QVERIFY(!selector.isShown());
}

void tst_ProfileSelectorLifecycle::activatingWithoutBuildingAsksForNothing()
{
    RecordingHost host;
    RecordingPluginsManager manager({"A"});
    TvkProfileSelectorExtension selector;
    selector.activate();
    QVERIFY(host.shell.calls.isEmpty());
}

void tst_ProfileSelectorLifecycle::theWidgetsCanBeBuiltAgain()
{
    SelectorRig rig;
    rig.activate();
    const QPointer<QToolBar> first = rig.shell.bar;
    rig.selector.deactivate();
    rig.selector.releaseWidgets();
    QVERIFY(!first);
    rig.selector.createWidgets();
    rig.activate();
    QCOMPARE(rig.combo().count(), 3);
}

void tst_ProfileSelectorLifecycle::itsDestructionTakesTheWidgetsAlong()
{
    WindowShell shell;
    RecordingPluginsManager manager({"A"});
    {
        TvkProfileSelectorExtension selector;
        selector.createWidgets();
        selector.activate();
        QVERIFY(shell.bar);
    }
    QVERIFY(!shell.bar);
}

TAVRIK_TEST_MAIN(tst_ProfileSelectorLifecycle)
#include "tst_ProfileSelectorLifecycle.moc"
