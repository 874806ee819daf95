#include "scenegraph/SoPreferences.h"

#include "tests/support/ReportLog.h"
#include "tests/support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

class tst_SoPreferences : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void anAbsentPreferenceGivesTheDefault();
    void theEnvironmentComesBeforeTheFile();
    void readsBooleans_data();
    void readsBooleans();
    void readsLinesOfTheFile_data();
    void readsLinesOfTheFile();
    void theLastLineOfANameCounts();
    void aNameIsNoPrefixOfAnother();
    void aMalformedLineIsReportedOnceAndSkipped();
    void aChangedFileIsSeenAtTheNextQuestion();
    void findsTheFileWhereTheEnvironmentSays_data();
    void findsTheFileWhereTheEnvironmentSays();
    void aRelativeConfigurationDirectoryIsPassedOver();
    void aFileThatIsMissingOrADirectoryIsEmpty();

private:
    QString path(const QString& name) const { return m_directory->filePath(name); }
    void write(const QString& name, const QByteArray& content) const;

    QScopedPointer<QTemporaryDir> m_directory;
    QByteArray m_home;
    QByteArray m_config;
};

void tst_SoPreferences::init()
{
    m_directory.reset(new QTemporaryDir);
    m_home = qgetenv("HOME");
    m_config = qgetenv("XDG_CONFIG_HOME");
    qputenv("TAVRIK_PREFERENCES", path("preferences").toUtf8());
}

void tst_SoPreferences::cleanup()
{
    qunsetenv("TAVRIK_PREFERENCES");
    qunsetenv("TST_NAME");
    qputenv("HOME", m_home);
    qputenv("XDG_CONFIG_HOME", m_config);
}

void tst_SoPreferences::write(const QString& name, const QByteArray& content) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

void tst_SoPreferences::anAbsentPreferenceGivesTheDefault()
{
    QVERIFY(!SoPreferences::getBool("TST_NAME", false));
    QVERIFY(SoPreferences::getBool("TST_NAME", true));
    QCOMPARE(SoPreferences::getString("TST_NAME", "").getString(), "");
    QCOMPARE(SoPreferences::getString("TST_NAME", "default").getString(), "default");
}

void tst_SoPreferences::theEnvironmentComesBeforeTheFile()
{
    write("preferences", "TST_NAME from the file\n");
    QCOMPARE(SoPreferences::getString("TST_NAME", "").getString(), "from the file");
    qputenv("TST_NAME", "from the environment");
    QCOMPARE(SoPreferences::getString("TST_NAME", "").getString(), "from the environment");
}

void tst_SoPreferences::readsBooleans_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("expected");
    for (const char* text : {"1", "2", "-1", "+7", "010", "true", "TRUE", "True", " 1 "})
        QTest::newRow(text) << QByteArray(text) << true;
    for (const char* text : {"0", "00", "-0", "false", "FALSE", "no", "yes", "1x", "truely", " "})
        QTest::newRow(text) << QByteArray(text) << false;
    QTest::newRow("more digits than an integer has") << QByteArray("99999999999999999999") << true;
}

void tst_SoPreferences::readsBooleans()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, expected);
    qputenv("TST_NAME", text);
    QCOMPARE(bool(SoPreferences::getBool("TST_NAME", !expected)), expected);
    qunsetenv("TST_NAME");
    if (text.trimmed().isEmpty())
        return;
    write("preferences", "TST_NAME " + text + "\n");
    QCOMPARE(bool(SoPreferences::getBool("TST_NAME", !expected)), expected);
}

void tst_SoPreferences::readsLinesOfTheFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* name, const char* content, const char* expected) {
        QTest::newRow(name) << QByteArray(content) << QByteArray(expected);
    };
    row("name and value", "TST_NAME value\n", "value");
    row("equals sign", "TST_NAME = value\n", "value");
    row("equals sign without blanks", "TST_NAME=value\n", "value");
    row("no line end", "TST_NAME value", "value");
    row("tab", "\tTST_NAME\tvalue\t\n", "value");
    row("value with spaces", "TST_NAME = a value  of words \n", "a value  of words");
    row("value with signs", "TST_NAME /a=b#c\n", "/a=b#c");
    row("second equals sign", "TST_NAME == x\n", "= x");
    row("nothing after the equals sign", "TST_NAME =\n", "");
    row("comments and blank lines", "# TST_NAME no\n\n  \n  # no\nTST_NAME yes\n", "yes");
    row("line ends with carriage returns", "# c\r\n\r\nTST_NAME value\r\n", "value");
    row("UTF-8", "TST_NAME = Füße €\n", "Füße €");
    row("byte order mark", "\xef\xbb\xbfTST_NAME value\n", "value");
}

void tst_SoPreferences::readsLinesOfTheFile()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, expected);
    write("preferences", content);
    ReportLog log;
    QCOMPARE(QByteArray(SoPreferences::getString("TST_NAME", "absent").getString()), expected);
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoPreferences::theLastLineOfANameCounts()
{
    write("preferences", "TST_NAME first\nOTHER x\nTST_NAME second\n");
    QCOMPARE(SoPreferences::getString("TST_NAME", "").getString(), "second");
}

void tst_SoPreferences::aNameIsNoPrefixOfAnother()
{
    write("preferences", "TST_NAME_LONGER x\n");
    QCOMPARE(SoPreferences::getString("TST_NAME", "absent").getString(), "absent");
}

void tst_SoPreferences::aMalformedLineIsReportedOnceAndSkipped()
{
    write("preferences", "OTHER\n= value\nTST_NAME value\n");
    ReportLog log;
    QCOMPARE(SoPreferences::getString("TST_NAME", "").getString(), "value");
    const QStringList reports = log.taken();
    QCOMPARE(reports.size(), 2);
    QVERIFY2(reports[0].contains(path("preferences") + ":1"), qPrintable(reports[0]));
    QVERIFY2(reports[1].contains(path("preferences") + ":2"), qPrintable(reports[1]));
    QCOMPARE(SoPreferences::getString("OTHER", "absent").getString(), "absent");
    QCOMPARE(log.taken(), QStringList());
}

void tst_SoPreferences::aChangedFileIsSeenAtTheNextQuestion()
{
    write("preferences", "TST_NAME 1\n");
    QVERIFY(SoPreferences::getBool("TST_NAME", false));
    write("preferences", "TST_NAME 0\n");
    QVERIFY(!SoPreferences::getBool("TST_NAME", true));
}

void tst_SoPreferences::findsTheFileWhereTheEnvironmentSays_data()
{
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("named") << "" << QByteArray("named");
    QTest::newRow("configuration") << "TAVRIK_PREFERENCES" << QByteArray("configuration");
    QTest::newRow("home") << "TAVRIK_PREFERENCES XDG_CONFIG_HOME" << QByteArray("home");
    QTest::newRow("nowhere") << "TAVRIK_PREFERENCES XDG_CONFIG_HOME HOME" << QByteArray("absent");
}

void tst_SoPreferences::findsTheFileWhereTheEnvironmentSays()
{
    QFETCH(QString, missing);
    QFETCH(QByteArray, expected);
    write("preferences", "TST_NAME named\n");
    write("config/tavrik/preferences", "TST_NAME configuration\n");
    write("home/.config/tavrik/preferences", "TST_NAME home\n");
    qputenv("XDG_CONFIG_HOME", path("config").toUtf8());
    qputenv("HOME", path("home").toUtf8());
    for (const QString& variable : missing.split(' ', Qt::SkipEmptyParts))
        qunsetenv(qPrintable(variable));
    QCOMPARE(QByteArray(SoPreferences::getString("TST_NAME", "absent").getString()), expected);
}

void tst_SoPreferences::aRelativeConfigurationDirectoryIsPassedOver()
{
    write("home/.config/tavrik/preferences", "TST_NAME home\n");
    qunsetenv("TAVRIK_PREFERENCES");
    qputenv("XDG_CONFIG_HOME", "relative");
    qputenv("HOME", path("home").toUtf8());
    QCOMPARE(SoPreferences::getString("TST_NAME", "absent").getString(), "home");
}

void tst_SoPreferences::aFileThatIsMissingOrADirectoryIsEmpty()
{
    ReportLog log;
    QCOMPARE(SoPreferences::getString("TST_NAME", "absent").getString(), "absent");
    qputenv("TAVRIK_PREFERENCES", m_directory->path().toUtf8());
    QCOMPARE(SoPreferences::getString("TST_NAME", "absent").getString(), "absent");
    QCOMPARE(log.taken(), QStringList());
}

TAVRIK_TEST_MAIN(tst_SoPreferences)
#include "tst_SoPreferences.moc"
