#include "tests/support/TestMain.h"

#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

/** The real program, as started from the command line. */
class tst_Program : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void helpAndVersionNeedNoDisplay_data();
    void helpAndVersionNeedNoDisplay();
    void unknownOptionsAreRefused();
    void twoScenesAreRefused();
    void aTourWithoutASceneIsRefused();
    void theTourWritesAPictureOfEachStep();
    void theTourFailsOnASceneWithNothingToEdit();
    void theTourFailsOnASceneThatCannotBeRead();
    void extensionsAreListedWithoutADisplay();
    void theExtensionsOfANamedPluginAreListed_data();
    void theExtensionsOfANamedPluginAreListed();
    void whatIsNoPluginIsTold_data();
    void whatIsNoPluginIsTold();
    void aScreenshotHoldsTheWholeWindow();
    void aScreenshotNeedsNoScene();
    void whatCannotBeDoneIsTold_data();
    void whatCannotBeDoneIsTold();
    void whatIsReportedReachesTheTerminalOnce_data();
    void whatIsReportedReachesTheTerminalOnce();
    void aFailedScreenshotLeavesTheOldPicture();
    void argumentsThatMakeNoSenseAreRefused_data();
    void argumentsThatMakeNoSenseAreRefused();
    void aWindowNeedsADisplay();
    void aWindowNeedsAPlatformWithPictures();

private:
    struct Result
    {
        int code;
        QString output;
        QString errors;
    };
    Result run(const QStringList& arguments, bool withDisplay = true) const;
    QString write(const QString& name, const QByteArray& text) const;

    QTemporaryDir m_folder;
};

void tst_Program::initTestCase()
{
    QVERIFY(m_folder.isValid());
}

tst_Program::Result tst_Program::run(const QStringList& arguments, bool withDisplay) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", m_folder.filePath("settings"));
    // The graphics driver is gone when leaks are counted, so that its own could not be left out.
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    if (!withDisplay)
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(name);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(TAVRIK_PROGRAM), arguments);
    if (!process.waitForFinished(300000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, process.readAllStandardOutput(), process.readAllStandardError()};
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

QString tst_Program::write(const QString& name, const QByteArray& text) const
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QFile::WriteOnly) || file.write(text) != text.size())
        qFatal("the scene cannot be written");
    return file.fileName();
}

void tst_Program::helpAndVersionNeedNoDisplay_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("expected");
    QTest::newRow("help") << "--help"
                          << "--tour";
    QTest::newRow("version") << "--version"
                             << "tavrik ";
}

void tst_Program::helpAndVersionNeedNoDisplay()
{
    QFETCH(QString, option);
    QFETCH(QString, expected);
    const Result result = run({option}, false);
    QCOMPARE(result.code, 0);
    QVERIFY2(result.output.contains(expected), qPrintable(result.output));
}

void tst_Program::unknownOptionsAreRefused()
{
    const Result result = run({"--frobnicate"});
    QCOMPARE(result.code, 2);
    QVERIFY2(result.errors.contains("frobnicate"), qPrintable(result.errors));
}

void tst_Program::twoScenesAreRefused()
{
    QCOMPARE(run({"one.iv", "two.iv"}).code, 2);
}

void tst_Program::aTourWithoutASceneIsRefused()
{
    QCOMPARE(run({"--tour", m_folder.filePath("tour")}).code, 2);
}

void tst_Program::theTourWritesAPictureOfEachStep()
{
    const QString folder = m_folder.filePath("tour");
    const Result result = run({"--tour", folder, QStringLiteral(TAVRIK_EXAMPLE)});
    QVERIFY2(result.code == 0, qPrintable(result.errors));
    // At its end, in two palettes: every editor, a sheet of them, a dialog, the console.
    QCOMPARE(QDir(folder + "/editors").entryList({"*.png"}).size(), 2 * (41 + 3));
    const QStringList pictures = QDir(folder).entryList({"*.png"});
    QCOMPARE(pictures.size(), 11);
    QImage last;
    for (const QString& name : pictures) {
        const QImage picture(QDir(folder).filePath(name));
        QVERIFY2(picture.width() >= 1000 && picture != last, qPrintable(name));
        last = picture;
    }
}

void tst_Program::theTourFailsOnASceneWithNothingToEdit()
{
    const QString scene = write("ball.iv", "#Inventor V2.1 ascii\nSphere {}\n");
    const Result result = run({"--tour", m_folder.filePath("failing"), scene});
    QCOMPARE(result.code, 1);
    QVERIFY2(result.errors.contains("no Transform in the scene"), qPrintable(result.errors));
}

void tst_Program::theTourFailsOnASceneThatCannotBeRead()
{
    QCOMPARE(run({"--tour", m_folder.filePath("failing"), "no such scene.iv"}).code, 1);
}

void tst_Program::extensionsAreListedWithoutADisplay()
{
    const Result result = run({"--list-extensions"}, false);
    QVERIFY2(result.code == 0, qPrintable(result.errors));
    const QStringList lines = result.output.split('\n', Qt::SkipEmptyParts);
    for (const QString& line : lines)
        QCOMPARE(line.split('\t').size(), 5);
    // In the order of registration, which is not that of their names.
    const int color =
        lines.indexOf(QRegularExpression("^DvMFColorWidget\t.*\tQuelvar\t1\\.0\\.0$"));
    const int path = lines.indexOf(QRegularExpression("^DvSFFilePathStringWidget\t.*"));
    const int reals = lines.indexOf(QRegularExpression("^DvMFFloatWidget\t.*"));
    QVERIFY2(color >= 0 && color < path && path < reals, qPrintable(result.output));
}

void tst_Program::theExtensionsOfANamedPluginAreListed_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("behind it") << QStringList{"--plugin", TAVRIK_OTHER_PLUGIN};
    QTest::newRow("in one") << QStringList{"--plugin=" TAVRIK_OTHER_PLUGIN};
}

void tst_Program::theExtensionsOfANamedPluginAreListed()
{
    QFETCH(QStringList, arguments);
    const Result result = run(arguments + QStringList{"--list-extensions"}, false);
    QVERIFY2(result.code == 0, qPrintable(result.errors));
    QVERIFY2(result.output.startsWith("TimeEditor\t"), qPrintable(result.output));
    QCOMPARE(result.output.count('\n'), 1);
}

void tst_Program::whatIsNoPluginIsTold_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("says");
    QTest::newRow("missing") << "/nowhere/Nothing.so"
                             << "There is no plug-in /nowhere/Nothing.so";
    QTest::newRow("no library") << TAVRIK_EXAMPLE << "cannot be opened";
    QTest::newRow("without loadPlugin") << TAVRIK_LIBRARY << "it has no function loadPlugin";
    QTest::newRow("loadPlugin answers null") << TAVRIK_NULL_PLUGIN << "made no plug-in";
}

void tst_Program::whatIsNoPluginIsTold()
{
    QFETCH(QString, file);
    QFETCH(QString, says);
    const Result result = run({"--plugin", file, "--list-extensions"}, false);
    QCOMPARE(result.code, 1);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.contains("tavrik: ") && result.errors.contains(says),
             qPrintable(result.errors));
}

void tst_Program::aScreenshotHoldsTheWholeWindow()
{
    const QString plain = m_folder.filePath("plain.png");
    const QString selected = m_folder.filePath("selected.png");
    const Result first = run({"--screenshot", plain, TAVRIK_EXAMPLE});
    QVERIFY2(first.code == 0, qPrintable(first.errors));
    const Result second = run(
        {"--screenshot", selected, "--select", "/lamp/Translation[0].translation", TAVRIK_EXAMPLE});
    QVERIFY2(second.code == 0, qPrintable(second.errors));
    const QImage picture(plain);
    QVERIFY(picture.width() >= 1000);
    QCOMPARE(QImage(selected).size(), picture.size());
    // The scene in its middle, and with a field selected its editor at the side.
    QSet<QRgb> colors;
    const QRect middle(picture.width() / 2 - 100, picture.height() / 2 - 100, 200, 200);
    for (int y = middle.top(); y < middle.bottom(); ++y)
        for (int x = middle.left(); x < middle.right(); ++x)
            colors.insert(picture.pixel(x, y));
    QVERIFY2(colors.size() > 20, QByteArray::number(colors.size()));
    QVERIFY(QImage(selected) != picture);
}

void tst_Program::aScreenshotNeedsNoScene()
{
    const QString file = m_folder.filePath("empty.png");
    const Result result = run({"--screenshot", file});
    QVERIFY2(result.code == 0, qPrintable(result.errors));
    QVERIFY(QImage(file).width() >= 1000);
}

void tst_Program::whatCannotBeDoneIsTold_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("says");
    const QString picture = m_folder.filePath("unwanted.png");
    QTest::newRow("no such scene")
        << QStringList{"--screenshot", picture, "none.iv"} << "There is no file \"none.iv\"";
    QTest::newRow("garbage") << QStringList{"--screenshot", picture,
                                            write("garbage.iv", "#Inventor V2.1 ascii\n}{%\n")}
                             << "cannot be read as a scene";
    QTest::newRow("deep") << QStringList{"--screenshot", picture,
                                         write("deep.iv",
                                               "#Inventor V2.1 ascii\n" +
                                                   QByteArray("Group { ").repeated(100000) +
                                                   QByteArray("}").repeated(100000))}
                          << "nested too deeply";
    QTest::newRow("no such node") << QStringList{"--screenshot", picture, "--select",
                                                 "/lamp/Sun[0]", TAVRIK_EXAMPLE}
                                  << "There is no node \"Sun[0]\" below \"/lamp\"";
    QTest::newRow("no such field")
        << QStringList{"--screenshot", picture, "--select", "/lamp.watts", TAVRIK_EXAMPLE}
        << "\"/lamp\" has no field \"watts\"";
    QTest::newRow("no such plug-in") << QStringList{"--screenshot", picture, "--plugin", "none.so"}
                                     << "There is no plug-in none.so";
    QTest::newRow("no such folder") << QStringList{"--screenshot", "/nowhere/picture.png"}
                                    << "\"/nowhere/picture.png\" cannot be written";
    QTest::newRow("no such format") << QStringList{"--screenshot", m_folder.filePath("picture.iv")}
                                    << "cannot be written: its suffix names no format";
}

void tst_Program::whatCannotBeDoneIsTold()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, says);
    const Result result = run(arguments);
    QCOMPARE(result.code, 1);
    QVERIFY2(result.errors.contains("tavrik: ") && result.errors.contains(says),
             qPrintable(result.errors));
    QVERIFY(!QFile::exists(m_folder.filePath("unwanted.png")));
}

void tst_Program::whatIsReportedReachesTheTerminalOnce_data()
{
    QTest::addColumn<QStringList>("plugins");
    QTest::addColumn<QByteArray>("node");
    QTest::addColumn<QString>("report");
    const QStringList none{"--plugin", TAVRIK_OTHER_PLUGIN};
    const QByteArray badIndex = "IndexedLineSet { coordIndex [0, 9, -1] }";
    const QString warning = "Erroneous coordinate index: 9";
    QTest::newRow("a warning, with a console") << QStringList() << badIndex << warning;
    QTest::newRow("a warning, without a console") << none << badIndex << warning;
    QTest::newRow("a read error") << QStringList()
                                  << QByteArray("Texture2 { filename \"nowhere.png\" }")
                                  << "nowhere.png";
}

void tst_Program::whatIsReportedReachesTheTerminalOnce()
{
    QFETCH(QStringList, plugins);
    QFETCH(QByteArray, node);
    QFETCH(QString, report);
    const QString scene =
        write("reporting.iv", "#Inventor V2.1 ascii\nSeparator { Cube { } " + node + " }\n");
    const Result result =
        run(plugins + QStringList{"--screenshot", m_folder.filePath("reporting.png"), scene});
    QCOMPARE(result.code, 0);
    QVERIFY2(result.errors.count(report) == 1, qPrintable(result.errors));
}

void tst_Program::aFailedScreenshotLeavesTheOldPicture()
{
    const QString picture = write("old.png", "the old one");
    QCOMPARE(run({"--screenshot", picture, "none.iv"}).code, 1);
    QCOMPARE(QFileInfo(picture).size(), qint64(11));
}

void tst_Program::argumentsThatMakeNoSenseAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("selection without a scene") << QStringList{"--select", "/lamp"};
    QTest::newRow("empty selection") << QStringList{"--select", "", TAVRIK_EXAMPLE};
    QTest::newRow("screenshot without a file") << QStringList{"--screenshot"};
    QTest::newRow("empty plug-in") << QStringList{"--plugin=", "--list-extensions"};
    QTest::newRow("two jobs") << QStringList{"--screenshot", "a.png", "--gallery", "b"};
}

void tst_Program::argumentsThatMakeNoSenseAreRefused()
{
    QFETCH(QStringList, arguments);
    const Result result = run(arguments);
    QCOMPARE(result.code, 2);
    QVERIFY2(result.errors.contains("tavrik --help"), qPrintable(result.errors));
}

void tst_Program::aWindowNeedsADisplay()
{
    const Result result = run({TAVRIK_EXAMPLE}, false);
    QCOMPARE(result.code, 1);
    QVERIFY2(result.errors.contains("no display"), qPrintable(result.errors));
}

void tst_Program::aWindowNeedsAPlatformWithPictures()
{
    const Result result = run({"-platform", "offscreen", TAVRIK_EXAMPLE}, false);
    QCOMPARE(result.code, 1);
    QVERIFY2(result.errors.contains("three dimensions"), qPrintable(result.errors));
}

TAVRIK_TEST_MAIN(tst_Program)
#include "tst_Program.moc"
