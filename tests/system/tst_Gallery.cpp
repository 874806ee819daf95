#include "tests/support/TestMain.h"

#include "lib/HostPluginLoader.h"

#include <TvkEditor.h>
#include <TvkPlugin.h>

#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

namespace {

constexpr int s_width = 320; ///< of a picture without a pop-up, before scaling

int colorsIn(const QImage& picture)
{
    QSet<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colors << picture.pixel(x, y);
    }
    return colors.size();
}

/** Whether an icon is drawn, pixel by pixel, somewhere in a picture. */
bool shows(const QImage& picture, const QImage& icon)
{
    const auto isAt = [&](const QPoint& corner) {
        for (int y = 0; y < icon.height(); ++y)
            for (int x = 0; x < icon.width(); ++x)
                if (qAlpha(icon.pixel(x, y)) == 255 &&
                    picture.pixel(corner + QPoint(x, y)) != icon.pixel(x, y))
                    return false;
        return true;
    };
    for (int y = 0; y + icon.height() <= picture.height(); ++y)
        for (int x = 0; x + icon.width() <= picture.width(); ++x)
            if (isAt({x, y}))
                return true;
    return false;
}

/** The names of the field editors that the plug-in registers. */
QStringList fieldEditors()
{
    HostPluginLoader loader;
    TvkPlugin* const plugin =
        loader.load(HostPluginLoader::pluginDirectory() + QLatin1String("/TvkDefaults.so"));
    if (!plugin)
        qFatal("%s", qPrintable(loader.errorString()));
    plugin->load();
    QStringList names;
    for (const TvkExtension* extension : plugin->getExtensions()) {
        if (qobject_cast<const TvkEditor*>(extension))
            names << extension->objectName();
    }
    plugin->unload();
    return names;
}

} // namespace

/** The pictures of the editors, as the program makes them. */
class tst_Gallery : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QStringList m_editors;

    int run(const QStringList& arguments, const QString& scale, QString* errors = nullptr) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), scale);
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_folder.filePath("settings"));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(TAVRIK_PROGRAM), arguments);
        if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
            return -1;
        if (errors)
            *errors = QString::fromLocal8Bit(process.readAllStandardError());
        return process.exitCode();
    }

    static QString fileOf(const QString& editor, const char* palette, int scale)
    {
        return QStringLiteral("%1-%2-%3x.png").arg(editor, palette).arg(scale);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        m_editors = fieldEditors();
        QVERIFY(!m_editors.isEmpty());
    }

    void everyEditorHasAPictureInBothPalettes_data()
    {
        QTest::addColumn<int>("scale");
        QTest::newRow("scale 1") << 1;
        QTest::newRow("scale 2") << 2;
    }
    void everyEditorHasAPictureInBothPalettes()
    {
        QFETCH(int, scale);
        const QString factor = QString::number(scale);
        const QDir folder(m_folder.filePath(factor));
        QString errors;
        QVERIFY2(run({"--gallery", folder.path()}, factor, &errors) == 0, qPrintable(errors));
        for (const char* palette : {"light", "dark"}) {
            const QString ending = QStringLiteral("-%1-%2x.png").arg(palette, factor);
            QVERIFY(folder.exists("sheet" + ending));
            for (const char* other : {"HostProfileDialog", "TvkConsole"})
                QVERIFY2(colorsIn(QImage(folder.filePath(other + ending))) > 20, other);
            for (const QString& editor : m_editors) {
                const QImage picture(folder.filePath(fileOf(editor, palette, scale)));
                QVERIFY2(!picture.isNull(), qPrintable(editor));
                QVERIFY2(picture.width() >= s_width * scale, qPrintable(editor));
                QVERIFY2(colorsIn(picture) > 20, qPrintable(editor));
            }
        }
    }

    void iconsAreDrawnFromTheirFinestPicture()
    {
        const QDir folder(m_folder.filePath("icons"));
        QCOMPARE(run({"--gallery", folder.path()}, "2"), 0);
        const QImage console(folder.filePath("TvkConsole-light-2x.png"));
        const QImage fine(QStringLiteral(TAVRIK_ICONS "/save@2x.png"));
        QCOMPARE(fine.width(), 32);
        QVERIFY(shows(console, fine));
    }

    void theManualShowsEveryEditor()
    {
        QFile manual(QStringLiteral(TAVRIK_MANUAL "/editors.md"));
        QVERIFY(manual.open(QFile::ReadOnly));
        const QString text = QString::fromUtf8(manual.readAll());
        for (const QString& editor : m_editors) {
            const QString file = QStringLiteral("pictures/") + fileOf(editor, "light", 1);
            QVERIFY2(text.contains(QStringLiteral("![%1](%2)").arg(editor, file)),
                     qPrintable(editor));
            QVERIFY2(!QImage(QStringLiteral(TAVRIK_MANUAL "/") + file).isNull(), qPrintable(file));
        }
    }

    void aFolderThatCannotBeMadeIsAFailure()
    {
        QFile file(m_folder.filePath("file"));
        QVERIFY(file.open(QFile::WriteOnly));
        QString errors;
        QCOMPARE(run({"--gallery", file.fileName() + "/folder"}, "1", &errors), 1);
        QVERIFY2(errors.contains("cannot be made"), qPrintable(errors));
    }

    void aGalleryWithoutAFolderIsRefused() { QCOMPARE(run({"--gallery", ""}, "1"), 2); }
};

TAVRIK_TEST_MAIN(tst_Gallery)
#include "tst_Gallery.moc"
