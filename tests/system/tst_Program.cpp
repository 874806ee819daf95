#include "tests/support/TestMain.h"

#include <QImage>
#include <QProcess>
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
        environment.remove("DISPLAY");
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
    // At its end, every editor in two palettes, and a sheet of each.
    QCOMPARE(QDir(folder + "/editors").entryList({"*.png"}).size(), 2 * 25);
    const QStringList pictures = QDir(folder).entryList({"*.png"});
    QCOMPARE(pictures.size(), 9);
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

TAVRIK_TEST_MAIN(tst_Program)
#include "tst_Program.moc"
