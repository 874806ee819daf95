#include "lib/HostProfileStore.h"

#include "lib/HostSettings.h"

#include "tests/support/TestMain.h"

#include <QTemporaryDir>

class tst_HostProfileStore : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { HostSettings().clear(); }

    void withoutSettingsThereIsOnlyDefault();
    void whatIsWrittenIsReadAgain_data();
    void whatIsWrittenIsReadAgain();
    void theLayoutOfDefaultIsKeptToo();
    void removedProfilesDoNotComeBack();
    void anUnknownActiveProfileIsReplacedByDefault();
    void profilesWithoutNameAreLeftOut();
    void profilesOfTheSameNameAreKeptUnderAnother();
    void otherSettingsAreLeftAlone();

private:
    QTemporaryDir m_folder;
};

void tst_HostProfileStore::initTestCase()
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
}

void tst_HostProfileStore::withoutSettingsThereIsOnlyDefault()
{
    HostProfileList profiles;
    QCOMPARE(&HostProfileStore::read(profiles), &profiles.defaultProfile());
    QCOMPARE(profiles.all().size(), std::size_t(1));
}

void tst_HostProfileStore::whatIsWrittenIsReadAgain_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("extensions");
    QTest::addColumn<QStringList>("withoutEditors");
    QTest::newRow("nothing in it") << "empty" << QStringList() << QStringList();
    QTest::newRow("one of each") << "one" << QStringList{"p/dock"} << QStringList{"p/editor"};
    QTest::newRow("several") << "several" << QStringList{"p/a", "p/b", "q/a"}
                             << QStringList{"p/c", "p/d"};
    QTest::newRow("commas and quotes")
        << "a, \"b\" = [c]; \\d" << QStringList{"p/a, b", "p/\"c\""} << QStringList{"@p/e%"};
    QTest::newRow("other scripts") << QString::fromUtf8("Σκηνή ½ 場面")
                                   << QStringList{QString::fromUtf8("p/дом")} << QStringList();
}

void tst_HostProfileStore::whatIsWrittenIsReadAgain()
{
    QFETCH(QString, name);
    QFETCH(QStringList, extensions);
    QFETCH(QStringList, withoutEditors);
    HostProfileList written;
    HostProfile& profile = written.add(name, {{extensions.begin(), extensions.end()},
                                              {withoutEditors.begin(), withoutEditors.end()}});
    profile.layout = QByteArray("\0\xFF layout", 9);
    HostProfileStore::write(written, &profile);

    HostProfileList read;
    const HostProfile& active = HostProfileStore::read(read);
    QCOMPARE(read.all().size(), std::size_t(2));
    QCOMPARE(active.name(), name);
    QVERIFY(active.contents == profile.contents);
    QCOMPARE(active.layout, profile.layout);
    QVERIFY(!active.hasEverything());
}

void tst_HostProfileStore::theLayoutOfDefaultIsKeptToo()
{
    HostProfileList written;
    written.defaultProfile().layout = "layout";
    HostProfileStore::write(written, &written.defaultProfile());
    HostProfileList read;
    QCOMPARE(HostProfileStore::read(read).layout, QByteArray("layout"));
    QCOMPARE(read.all().size(), std::size_t(1));
}

void tst_HostProfileStore::removedProfilesDoNotComeBack()
{
    HostProfileList written;
    HostProfile& first = written.add("first", {{"p/a"}, {}});
    written.add("second", {});
    HostProfileStore::write(written, &first);
    written.take(first);
    HostProfileStore::write(written, &written.defaultProfile());
    HostProfileList read;
    HostProfileStore::read(read);
    QCOMPARE(read.all().size(), std::size_t(2));
    QVERIFY(read.find("second")->contents == HostProfileContents());
}

void tst_HostProfileStore::anUnknownActiveProfileIsReplacedByDefault()
{
    HostProfileList written;
    HostProfileStore::write(written, &written.add("Mine", {}));
    HostSettings().setValue("profiles/active", "Yours");
    HostProfileList read;
    QCOMPARE(HostProfileStore::read(read).name(), QString("Default"));
}

void tst_HostProfileStore::profilesWithoutNameAreLeftOut()
{
    HostProfileList written;
    HostProfileStore::write(written, &written.add("Mine", {}));
    HostSettings().remove("profiles/list/2/name");
    HostProfileList read;
    HostProfileStore::read(read);
    QCOMPARE(read.all().size(), std::size_t(1));
}

void tst_HostProfileStore::profilesOfTheSameNameAreKeptUnderAnother()
{
    HostProfileList written;
    written.add("Mine", {{"p/a"}, {}});
    HostProfileStore::write(written, &written.add("Yours", {{"p/b"}, {}}));
    HostSettings().setValue("profiles/list/3/name", "mine");
    HostProfileList read;
    HostProfileStore::read(read);
    QVERIFY(read.find("Mine")->hasExtension("p/a"));
    QVERIFY(read.find("mine 2")->hasExtension("p/b"));
}

void tst_HostProfileStore::otherSettingsAreLeftAlone()
{
    HostSettings().setValue("window/geometry", "here");
    HostProfileList profiles;
    HostProfileStore::write(profiles, &profiles.defaultProfile());
    QCOMPARE(HostSettings().value("window/geometry").toString(), QString("here"));
}

TAVRIK_TEST_MAIN(tst_HostProfileStore)
#include "tst_HostProfileStore.moc"
