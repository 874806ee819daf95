#include "tests/support/ComboChoice.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/RecordingPluginsManager.h"
#include "tests/support/TestMain.h"

#include "ProfileSelector/TvkProfileSelectorExtension.h"

#include <QMainWindow>
#include <QToolBar>

namespace {

/** A shell that puts tool bars into a real window, and notes how it was asked. */
class WindowShell : public RecordingShell
{
public:
    void addToolBar(QToolBar* toolBar, Qt::ToolBarArea area) override
    {
        RecordingShell::addToolBar(toolBar, area);
        bar = toolBar;
        wasActive = selector && selector->isActive();
        window.addToolBar(area, toolBar);
        toolBar->hide();
    }
    void removeToolBar(QToolBar* toolBar) override
    {
        RecordingShell::removeToolBar(toolBar);
        wasActive = selector && selector->isActive();
        if (!toolBar)
            return;
        window.removeToolBar(toolBar);
        toolBar->setParent(nullptr);
    }

    QMainWindow window;
    QPointer<QToolBar> bar;
    const TvkExtension* selector = nullptr; ///< not owned
    bool wasActive = false;                 ///< at the last call
};

QStringList texts(const QComboBox& combo)
{
    QStringList list;
    for (int i = 0; i < combo.count(); ++i)
        list << combo.itemText(i);
    return list;
}

/** The tool bar in a window, with three profiles of which the second is active. */
struct Rig
{
    explicit Rig(std::initializer_list<const char*> names = {"A", "B", "C"}) : manager(names)
    {
        shell.selector = &selector;
        if (names.size() > 1)
            manager.start(1);
        selector.createWidgets();
    }
    ~Rig()
    {
        selector.deactivate();
        selector.releaseWidgets();
    }
    Rig(const Rig&) = delete;
    Rig& operator=(const Rig&) = delete;

    void activate()
    {
        selector.activate();
        selector.show();
        shell.window.show();
        QApplication::setActiveWindow(&shell.window);
    }
    QComboBox& combo() const { return *shell.bar->findChild<QComboBox*>("profileCombo"); }
    void choose(int row) const { clickRow(combo(), row); }

    WindowShell shell;
    RecordingPluginsManager manager;
    TvkProfileSelectorExtension selector;
};

} // namespace

class tst_TvkProfileSelectorExtension : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setDoubleClickInterval(20); }

    void tellsWhoItIs();
    void theToolBarHasItsTitleAndTheListItsToolTip();
    void activationPlacesTheToolBarAtTheTop();
    void keepsTheBaseForTheEndOfActivation();
    void deactivationTakesTheToolBarOutAgain();
    void theBaseComesFirstAtDeactivation();
    void showingAndHidingReachTheToolBar();

    void activationShowsTheProfilesWithTheActiveOneCurrent();
    void activationAloneChoosesNothing();
    void withoutAnActiveProfileNothingIsCurrent();
    void namesAreReadAsLatin1();
    void itemsHaveNeitherIconNorValue();
    void anEmptyListOfProfilesLeavesTheListEmpty();

    void keepsAppendingTheNamesUpToTheChosenOne();
    void keepsAppendingTheFirstNameWhenItIsChosen();
    void keepsTheCurrentIndexWhileTheListGrows();
    void keepsAppendingEveryNameWhenACopyIsChosen();
    void anIndexBeyondTheListActivatesNothing();
    void activatingAgainListsTheProfilesOnceMore();
    void keysChooseAProfileToo();
    void afterDeactivationTheListChoosesNothing();

    void aChoiceMayDeactivateTheExtensionInItsOwnSlot();
    void aChoiceMayEvenReleaseItsWidgets();

    void activatingTwiceConnectsOnce();
    void deactivatingTwiceTakesOutOnce();
    void deactivatingWithoutActivationAsksForNothing();
    void releasingWithoutBuildingIsHarmless();
    void showingWithoutBuildingIsHarmless();
    void activatingWithoutBuildingAsksForNothing();
    void theWidgetsCanBeBuiltAgain();
    void itsDestructionTakesTheWidgetsAlong();
};

void tst_TvkProfileSelectorExtension::tellsWhoItIs()
{
    TvkProfileSelectorExtension selector;
    QCOMPARE(selector.getName().getString(), "Profile Selector");
    QCOMPARE(selector.getDescription().getString(), "A toolbar to select the active profile.");
    QCOMPARE(selector.getVendor().getString(), "Quelvar");
    QCOMPARE(selector.getVersion().getString(), "1.0.0");
}

void tst_TvkProfileSelectorExtension::theToolBarHasItsTitleAndTheListItsToolTip()
{
    Rig rig;
    rig.activate();
    QCOMPARE(rig.shell.bar->windowTitle(), QString("Profile Selector"));
    QCOMPARE(rig.combo().toolTip(), QString("Select the active profile."));
    QVERIFY(rig.combo().isVisible());
}

void tst_TvkProfileSelectorExtension::activationPlacesTheToolBarAtTheTop()
{
    Rig rig;
    rig.selector.activate();
    QCOMPARE(rig.shell.calls, (QStringList{"addToolBar \"Profile Selector\" 4",
                                           "registerExtension \"Profile Selector\" true"}));
    QVERIFY(rig.shell.bar->isHidden());
}

void tst_TvkProfileSelectorExtension::keepsTheBaseForTheEndOfActivation()
{
    Rig rig;
    rig.selector.activate();
    QVERIFY(!rig.shell.wasActive);
    QVERIFY(rig.selector.isActive());
}

void tst_TvkProfileSelectorExtension::deactivationTakesTheToolBarOutAgain()
{
    Rig rig;
    rig.activate();
    rig.shell.calls.clear();
    rig.selector.deactivate();
    QCOMPARE(rig.shell.calls, (QStringList{"removeToolBar \"Profile Selector\"",
                                           "unregisterExtension \"Profile Selector\""}));
}

void tst_TvkProfileSelectorExtension::theBaseComesFirstAtDeactivation()
{
    Rig rig;
    rig.activate();
    rig.shell.wasActive = true;
    rig.selector.deactivate();
    QVERIFY(!rig.shell.wasActive);
}

void tst_TvkProfileSelectorExtension::showingAndHidingReachTheToolBar()
{
    Rig rig;
    rig.activate();
    QVERIFY(rig.shell.bar->isVisible());
    QVERIFY(rig.selector.isShown());
    rig.selector.hide();
    QVERIFY(rig.shell.bar->isHidden());
    QVERIFY(!rig.selector.isShown());
}

void tst_TvkProfileSelectorExtension::activationShowsTheProfilesWithTheActiveOneCurrent()
{
    Rig rig;
    rig.activate();
    QCOMPARE(texts(rig.combo()), (QStringList{"A", "B", "C"}));
    QCOMPARE(rig.combo().currentText(), QString("B"));
}

void tst_TvkProfileSelectorExtension::activationAloneChoosesNothing()
{
    Rig rig;
    rig.activate();
    QCOMPARE(rig.manager.choices, 0);
}

void tst_TvkProfileSelectorExtension::withoutAnActiveProfileNothingIsCurrent()
{
    Rig rig({"A"});
    rig.activate();
    QCOMPARE(texts(rig.combo()), QStringList{"A"});
    QCOMPARE(rig.combo().currentIndex(), -1);
    rig.choose(0); // so that the first one can be chosen, too
    QCOMPARE(rig.manager.active(), QByteArray("A"));
}

void tst_TvkProfileSelectorExtension::namesAreReadAsLatin1()
{
    Rig rig({"Gr\xF6\xDF", "\xC3\xB6"});
    rig.activate();
    QCOMPARE(texts(rig.combo()), (QStringList{QString::fromUtf8("Größ"), QString::fromUtf8("Ã¶")}));
}

void tst_TvkProfileSelectorExtension::itemsHaveNeitherIconNorValue()
{
    Rig rig;
    rig.activate();
    rig.choose(2);
    for (int i = 0; i < 6; ++i) {
        QVERIFY(rig.combo().itemIcon(i).isNull());
        QVERIFY(!rig.combo().itemData(i).isValid());
    }
}

void tst_TvkProfileSelectorExtension::anEmptyListOfProfilesLeavesTheListEmpty()
{
    Rig rig({});
    rig.activate();
    QCOMPARE(rig.combo().count(), 0);
    rig.selector.s_currentIndexChanged(0);
    QCOMPARE(rig.combo().count(), 0);
    QCOMPARE(rig.manager.choices, 0);
}

void tst_TvkProfileSelectorExtension::keepsAppendingTheNamesUpToTheChosenOne()
{
    Rig rig;
    rig.activate();
    rig.choose(2);
    QCOMPARE(rig.manager.active(), QByteArray("C"));
    QCOMPARE(rig.manager.choices, 1);
    QCOMPARE(texts(rig.combo()), (QStringList{"A", "B", "C", "A", "B", "C"}));
}

void tst_TvkProfileSelectorExtension::keepsAppendingTheFirstNameWhenItIsChosen()
{
    Rig rig;
    rig.activate();
    rig.choose(0);
    QCOMPARE(rig.manager.active(), QByteArray("A"));
    QCOMPARE(texts(rig.combo()), (QStringList{"A", "B", "C", "A"}));
}

void tst_TvkProfileSelectorExtension::keepsTheCurrentIndexWhileTheListGrows()
{
    Rig rig;
    rig.activate();
    rig.choose(2);
    QCOMPARE(rig.combo().currentIndex(), 2);
    rig.choose(0);
    QCOMPARE(rig.combo().currentIndex(), 0);
    QCOMPARE(rig.combo().count(), 7);
}

void tst_TvkProfileSelectorExtension::keepsAppendingEveryNameWhenACopyIsChosen()
{
    Rig rig;
    rig.activate();
    rig.choose(2);
    rig.choose(4); // the second "B", which is no profile's place
    QCOMPARE(rig.manager.active(), QByteArray("C"));
    QCOMPARE(rig.combo().count(), 9);
}

void tst_TvkProfileSelectorExtension::anIndexBeyondTheListActivatesNothing()
{
    Rig rig;
    rig.activate();
    rig.selector.s_currentIndexChanged(3);
    rig.selector.s_currentIndexChanged(-1);
    QCOMPARE(rig.manager.choices, 0);
    QCOMPARE(rig.manager.active(), QByteArray("B"));
}

void tst_TvkProfileSelectorExtension::activatingAgainListsTheProfilesOnceMore()
{
    Rig rig;
    rig.activate();
    rig.choose(2);
    rig.selector.deactivate();
    rig.activate();
    QCOMPARE(texts(rig.combo()), (QStringList{"A", "B", "C"}));
    QCOMPARE(rig.combo().currentText(), QString("C"));
}

void tst_TvkProfileSelectorExtension::keysChooseAProfileToo()
{
    Rig rig;
    rig.activate();
    rig.combo().setFocus();
    QTest::keyClick(&rig.combo(), Qt::Key_Down);
    QCOMPARE(rig.manager.active(), QByteArray("C"));
    QTest::keyClick(&rig.combo(), Qt::Key_Home);
    QCOMPARE(rig.manager.active(), QByteArray("A"));
    QTest::keyClicks(&rig.combo(), "b");
    QCOMPARE(rig.manager.active(), QByteArray("B"));
}

void tst_TvkProfileSelectorExtension::afterDeactivationTheListChoosesNothing()
{
    Rig rig;
    rig.activate();
    QComboBox& combo = rig.combo();
    rig.selector.deactivate();
    combo.setCurrentIndex(2);
    QCOMPARE(rig.manager.choices, 0);
    QCOMPARE(combo.count(), 3);
}

void tst_TvkProfileSelectorExtension::aChoiceMayDeactivateTheExtensionInItsOwnSlot()
{
    Rig rig;
    rig.activate();
    rig.manager.onChoice = [&rig] { rig.selector.deactivate(); };
    rig.combo().setFocus();
    QTest::keyClick(&rig.combo(), Qt::Key_Down);
    QVERIFY(!rig.selector.isActive());
    QVERIFY(!rig.shell.bar->parent());
    QCOMPARE(rig.manager.active(), QByteArray("C"));
}

/** The combo box itself would not survive that while it sends its signal; the slot does. */
void tst_TvkProfileSelectorExtension::aChoiceMayEvenReleaseItsWidgets()
{
    Rig rig;
    rig.activate();
    rig.manager.onChoice = [&rig] { rig.selector.releaseWidgets(); };
    rig.selector.s_currentIndexChanged(0);
    QVERIFY(!rig.shell.bar);
    rig.selector.s_currentIndexChanged(2);
    QCOMPARE(rig.manager.active(), QByteArray("C"));
}

void tst_TvkProfileSelectorExtension::activatingTwiceConnectsOnce()
{
    Rig rig;
    rig.activate();
    rig.activate();
    QCOMPARE(rig.manager.choices, 0);
    QCOMPARE(rig.combo().count(), 3);
    rig.choose(2);
    QCOMPARE(rig.manager.choices, 1);
    QCOMPARE(rig.combo().count(), 6);
}

void tst_TvkProfileSelectorExtension::deactivatingTwiceTakesOutOnce()
{
    Rig rig;
    rig.activate();
    rig.selector.deactivate();
    rig.selector.deactivate();
    QCOMPARE(rig.shell.calls.filter("removeToolBar").size(), 1);
}

void tst_TvkProfileSelectorExtension::deactivatingWithoutActivationAsksForNothing()
{
    Rig rig;
    rig.selector.deactivate();
    QVERIFY(rig.shell.calls.isEmpty());
}

void tst_TvkProfileSelectorExtension::releasingWithoutBuildingIsHarmless()
{
    RecordingHost host;
    TvkProfileSelectorExtension selector;
    selector.releaseWidgets();
    selector.deactivate();
    selector.releaseWidgets();
    QVERIFY(host.shell.calls.isEmpty());
}

void tst_TvkProfileSelectorExtension::showingWithoutBuildingIsHarmless()
{
    TvkProfileSelectorExtension selector;
    selector.show();
    QVERIFY(selector.isShown());
    selector.hide();
    QVERIFY(!selector.isShown());
}

void tst_TvkProfileSelectorExtension::activatingWithoutBuildingAsksForNothing()
{
    RecordingHost host;
    RecordingPluginsManager manager({"A"});
    TvkProfileSelectorExtension selector;
    selector.activate();
    QVERIFY(host.shell.calls.isEmpty());
}

void tst_TvkProfileSelectorExtension::theWidgetsCanBeBuiltAgain()
{
    Rig rig;
    rig.activate();
    const QPointer<QToolBar> first = rig.shell.bar;
    rig.selector.deactivate();
    rig.selector.releaseWidgets();
    QVERIFY(!first);
    rig.selector.createWidgets();
    rig.activate();
    QCOMPARE(rig.combo().count(), 3);
}

void tst_TvkProfileSelectorExtension::itsDestructionTakesTheWidgetsAlong()
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

TAVRIK_TEST_MAIN(tst_TvkProfileSelectorExtension)
#include "tst_TvkProfileSelectorExtension.moc"
