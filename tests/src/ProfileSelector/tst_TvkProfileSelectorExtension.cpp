#include "tests/src/ProfileSelector/SelectorRig.h"
#include "tests/support/TestMain.h"

/** The profile selector's list, and what a choice in it does. */
class tst_TvkProfileSelectorExtension : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setDoubleClickInterval(20); }

    void tellsWhoItIs();
    void theToolBarHasItsTitleAndTheListItsToolTip();
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
    SelectorRig rig;
    rig.activate();
    QCOMPARE(rig.shell.bar->windowTitle(), QString("Profile Selector"));
    QCOMPARE(rig.combo().toolTip(), QString("Select the active profile."));
    QVERIFY(rig.combo().isVisible());
}

void tst_TvkProfileSelectorExtension::activationShowsTheProfilesWithTheActiveOneCurrent()
{
    SelectorRig rig;
    rig.activate();
    QCOMPARE(texts(rig.combo()), (QStringList{"A", "B", "C"}));
    QCOMPARE(rig.combo().currentText(), QString("B"));
}

void tst_TvkProfileSelectorExtension::activationAloneChoosesNothing()
{
    SelectorRig rig;
    rig.activate();
    QCOMPARE(rig.manager.choices, 0);
}

void tst_TvkProfileSelectorExtension::withoutAnActiveProfileNothingIsCurrent()
{
    SelectorRig rig({"A"});
    rig.activate();
    QCOMPARE(texts(rig.combo()), QStringList{"A"});
    QCOMPARE(rig.combo().currentIndex(), -1);
    rig.choose(0); // so that the first one can be chosen, too
    QCOMPARE(rig.manager.active(), QByteArray("A"));
}

void tst_TvkProfileSelectorExtension::namesAreReadAsLatin1()
{
    SelectorRig rig({"Gr\xF6\xDF", "\xC3\xB6"});
    rig.activate();
    QCOMPARE(texts(rig.combo()), (QStringList{QString::fromUtf8("Größ"), QString::fromUtf8("Ã¶")}));
}

void tst_TvkProfileSelectorExtension::itemsHaveNeitherIconNorValue()
{
    SelectorRig rig;
    rig.activate();
    rig.choose(2);
    for (int i = 0; i < 6; ++i) {
        QVERIFY(rig.combo().itemIcon(i).isNull());
        QVERIFY(!rig.combo().itemData(i).isValid());
    }
}

void tst_TvkProfileSelectorExtension::anEmptyListOfProfilesLeavesTheListEmpty()
{
    SelectorRig rig({});
    rig.activate();
    QCOMPARE(rig.combo().count(), 0);
    rig.selector.s_currentIndexChanged(0);
    QCOMPARE(rig.combo().count(), 0);
    QCOMPARE(rig.manager.choices, 0);
}

void tst_TvkProfileSelectorExtension::keepsAppendingTheNamesUpToTheChosenOne()
{
    SelectorRig rig;
    rig.activate();
    rig.choose(2);
    QCOMPARE(rig.manager.active(), QByteArray("C"));
    QCOMPARE(rig.manager.choices, 1);
    QCOMPARE(texts(rig.combo()), (QStringList{"A", "B", "C", "A", "B", "C"}));
}

void tst_TvkProfileSelectorExtension::keepsAppendingTheFirstNameWhenItIsChosen()
{
    SelectorRig rig;
    rig.activate();
    rig.choose(0);
    QCOMPARE(rig.manager.active(), QByteArray("A"));
    QCOMPARE(texts(rig.combo()), (QStringList{"A", "B", "C", "A"}));
}

void tst_TvkProfileSelectorExtension::keepsTheCurrentIndexWhileTheListGrows()
{
    SelectorRig rig;
    rig.activate();
    rig.choose(2);
    QCOMPARE(rig.combo().currentIndex(), 2);
    rig.choose(0);
    QCOMPARE(rig.combo().currentIndex(), 0);
    QCOMPARE(rig.combo().count(), 7);
}

void tst_TvkProfileSelectorExtension::keepsAppendingEveryNameWhenACopyIsChosen()
{
    SelectorRig rig;
    rig.activate();
    rig.choose(2);
    rig.choose(4); // the second "B", which is no profile's place
    QCOMPARE(rig.manager.active(), QByteArray("C"));
    QCOMPARE(rig.combo().count(), 9);
}

void tst_TvkProfileSelectorExtension::anIndexBeyondTheListActivatesNothing()
{
    SelectorRig rig;
    rig.activate();
    rig.selector.s_currentIndexChanged(3);
    rig.selector.s_currentIndexChanged(-1);
    QCOMPARE(rig.manager.choices, 0);
    QCOMPARE(rig.manager.active(), QByteArray("B"));
}

void tst_TvkProfileSelectorExtension::activatingAgainListsTheProfilesOnceMore()
{
    SelectorRig rig;
    rig.activate();
    rig.choose(2);
    rig.selector.deactivate();
    rig.activate();
    QCOMPARE(texts(rig.combo()), (QStringList{"A", "B", "C"}));
    QCOMPARE(rig.combo().currentText(), QString("C"));
}

void tst_TvkProfileSelectorExtension::keysChooseAProfileToo()
{
    SelectorRig rig;
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
    SelectorRig rig;
    rig.activate();
    QComboBox& combo = rig.combo();
    rig.selector.deactivate();
    combo.setCurrentIndex(2);
    QCOMPARE(rig.manager.choices, 0);
    QCOMPARE(combo.count(), 3);
}

void tst_TvkProfileSelectorExtension::aChoiceMayDeactivateTheExtensionInItsOwnSlot()
{
    SelectorRig rig;
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
    SelectorRig rig;
    rig.activate();
    rig.manager.onChoice = [&rig] { rig.selector.releaseWidgets(); };
    rig.selector.s_currentIndexChanged(0);
    QVERIFY(!rig.shell.bar);
    rig.selector.s_currentIndexChanged(2);
    QCOMPARE(rig.manager.active(), QByteArray("C"));
}

TAVRIK_TEST_MAIN(tst_TvkProfileSelectorExtension)
#include "tst_TvkProfileSelectorExtension.moc"
