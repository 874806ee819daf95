#include "lib/HostProfileList.h"

#include "tests/support/TestMain.h"

class tst_HostProfileList : public QObject
{
    Q_OBJECT

private slots:
    void aNewListHasDefaultWithEverythingInIt();
    void addedProfilesComeAtTheEnd();
    void profilesStayWhereTheyAreInMemory();
    void theDefaultProfileCannotBeTaken();
    void aTakenProfileLivesOnOutsideTheList();
    void aPointerThatIsNotInTheListIsNotFound();

    void anEmptyNameIsRefused_data();
    void anEmptyNameIsRefused();
    void aNameThatIsTakenIsRefusedWhateverItsCase();
    void aProfileMayKeepItsOwnName();
    void aFreeNameHasTheFirstNumberThatIsFree();
    void namesLoseWhatCannotBeSeen();
    void theSameNameWrittenInTwoWaysIsTheSame();

    void namesInLatin1ReachExtensionsUnchanged();
    void otherCharactersReachExtensionsAsQuestionMarksWithANumber();
    void theNumberFollowsTheProfilesPlace();

    void anUnknownDockIsNotInAProfile();
    void anUnknownEditorIsInEveryProfile();

private:
    static QString shortName(const HostProfile& profile)
    {
        return QString::fromLatin1(profile.getName().getString());
    }

    HostProfileList m_profiles;
};

void tst_HostProfileList::aNewListHasDefaultWithEverythingInIt()
{
    HostProfileList profiles;
    QCOMPARE(profiles.all().size(), std::size_t(1));
    QCOMPARE(profiles.defaultProfile().name(), QString("Default"));
    QVERIFY(profiles.defaultProfile().hasExtension("plugin/any dock"));
    QVERIFY(profiles.defaultProfile().hasEditor("plugin/any editor"));
}

void tst_HostProfileList::addedProfilesComeAtTheEnd()
{
    HostProfileList profiles;
    profiles.add("Z", {});
    profiles.add("A", {});
    QCOMPARE(profiles.all()[1]->name(), QString("Z"));
    QCOMPARE(profiles.all()[2]->name(), QString("A"));
}

void tst_HostProfileList::profilesStayWhereTheyAreInMemory()
{
    HostProfileList profiles;
    const HostProfile* const first = &profiles.add("first", {});
    HostProfile& second = profiles.add("second", {});
    for (int i = 0; i < 100; ++i)
        profiles.add(QString::number(i), {});
    profiles.take(second);
    QCOMPARE(profiles.find("first"), first);
    QCOMPARE(profiles.all().size(), std::size_t(102));
}

void tst_HostProfileList::theDefaultProfileCannotBeTaken()
{
    HostProfileList profiles;
    QVERIFY(!profiles.take(profiles.defaultProfile()));
    QCOMPARE(profiles.all().size(), std::size_t(1));
}

void tst_HostProfileList::aTakenProfileLivesOnOutsideTheList()
{
    HostProfileList profiles;
    const std::unique_ptr<HostProfile> taken = profiles.take(profiles.add("Mine", {}));
    QCOMPARE(taken->name(), QString("Mine"));
    QVERIFY(!profiles.find("Mine"));
}

void tst_HostProfileList::aPointerThatIsNotInTheListIsNotFound()
{
    HostProfileList profiles;
    const HostProfile stranger("Default", HostProfile::Everything);
    QVERIFY(!profiles.find(&stranger));
    QVERIFY(!profiles.find(static_cast<const TvkProfile*>(nullptr)));
    const TvkProfile* const own = &profiles.defaultProfile();
    QCOMPARE(profiles.find(own), &profiles.defaultProfile());
}

void tst_HostProfileList::anEmptyNameIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("nothing") << "";
    QTest::newRow("spaces") << "   ";
    QTest::newRow("a tab and a line's end") << "\t\n";
    QTest::newRow("control characters") << "\x01\x02";
}

void tst_HostProfileList::anEmptyNameIsRefused()
{
    QFETCH(QString, name);
    QCOMPARE(m_profiles.complaint(name), QString("A profile needs a name."));
}

void tst_HostProfileList::aNameThatIsTakenIsRefusedWhateverItsCase()
{
    const QString complaint = "There is a profile \"Default\" already.";
    QCOMPARE(m_profiles.complaint("Default"), complaint);
    QCOMPARE(m_profiles.complaint("  default "), complaint);
    QCOMPARE(m_profiles.complaint("Defaults"), QString());
}

void tst_HostProfileList::aProfileMayKeepItsOwnName()
{
    HostProfileList profiles;
    const HostProfile& mine = profiles.add("Mine", {});
    QCOMPARE(profiles.complaint("MINE", &mine), QString());
    QVERIFY(!profiles.complaint("MINE").isEmpty());
}

void tst_HostProfileList::aFreeNameHasTheFirstNumberThatIsFree()
{
    HostProfileList profiles;
    QCOMPARE(profiles.freeName("Mine"), QString("Mine"));
    profiles.add("Mine", {});
    QCOMPARE(profiles.freeName("Mine"), QString("Mine 2"));
    profiles.add("Mine 2", {});
    QCOMPARE(profiles.freeName("Mine"), QString("Mine 3"));
}

void tst_HostProfileList::namesLoseWhatCannotBeSeen()
{
    HostProfileList profiles;
    QCOMPARE(profiles.add("  two\n words\x01 ", {}).name(), QString("two words"));
}

void tst_HostProfileList::theSameNameWrittenInTwoWaysIsTheSame()
{
    HostProfileList profiles;
    profiles.add(QString::fromUtf8("Größe"), {});
    QVERIFY(!profiles.complaint(QString::fromUtf8("Gro\u0308ße")).isEmpty());
}

void tst_HostProfileList::namesInLatin1ReachExtensionsUnchanged()
{
    HostProfileList profiles;
    const QString name = QString::fromUtf8("Größe ½ & <b>");
    QCOMPARE(shortName(profiles.add(name, {})), name);
}

void tst_HostProfileList::otherCharactersReachExtensionsAsQuestionMarksWithANumber()
{
    HostProfileList profiles;
    const HostProfile& greek = profiles.add(QString::fromUtf8("α-Test 𝄞"), {});
    const HostProfile& other = profiles.add(QString::fromUtf8("β-Test 𝄢"), {});
    QCOMPARE(shortName(greek), QString("?-Test ? (2)"));
    QCOMPARE(shortName(other), QString("?-Test ? (3)"));
    QCOMPARE(greek.name(), QString::fromUtf8("α-Test 𝄞"));
}

void tst_HostProfileList::theNumberFollowsTheProfilesPlace()
{
    HostProfileList profiles;
    HostProfile& first = profiles.add("first", {});
    HostProfile& second = profiles.add("second", {});
    profiles.rename(second, QString::fromUtf8("Ω"));
    QCOMPARE(shortName(second), QString("? (3)"));
    profiles.take(first);
    QCOMPARE(shortName(second), QString("? (2)"));
}

void tst_HostProfileList::anUnknownDockIsNotInAProfile()
{
    HostProfileList profiles;
    const HostProfile& mine = profiles.add("Mine", {{"plugin/dock"}, {}});
    QVERIFY(mine.hasExtension("plugin/dock"));
    QVERIFY(!mine.hasExtension("plugin/new dock"));
}

void tst_HostProfileList::anUnknownEditorIsInEveryProfile()
{
    HostProfileList profiles;
    const HostProfile& mine = profiles.add("Mine", {{}, {"plugin/editor"}});
    QVERIFY(!mine.hasEditor("plugin/editor"));
    QVERIFY(mine.hasEditor("plugin/new editor"));
}

TAVRIK_TEST_MAIN(tst_HostProfileList)
#include "tst_HostProfileList.moc"
