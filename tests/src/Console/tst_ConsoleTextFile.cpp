#include "Console/ConsoleTextFile.h"

#include "tests/support/TestMain.h"

#include <QTemporaryDir>

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

} // namespace

/** The saved text of the console. */
class tst_ConsoleTextFile : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString pathOf(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

private slots:
    void theTextIsWrittenInLatin1AsItIs()
    {
        const ConsoleTextFile file(QString::fromUtf8("Größe: 5 µm\nend"));
        QVERIFY(file.write(pathOf("latin.txt")));
        QCOMPARE(contentOf(pathOf("latin.txt")), QByteArray("Gr\xf6\xdf"
                                                            "e: 5 \xb5m\nend"));
        QCOMPARE(file.replacedCharacters(), 0);
    }

    void whatLatin1DoesNotHaveIsOneQuestionMarkACharacter()
    {
        const ConsoleTextFile file(QString::fromUtf8("5 € of 日本 and 🦊?"));
        QVERIFY(file.write(pathOf("other.txt")));
        QCOMPARE(contentOf(pathOf("other.txt")), QByteArray("5 ? of ?? and ??"));
        QCOMPARE(file.replacedCharacters(), 4);
    }

    void anEmptyTextMakesAnEmptyFile()
    {
        QVERIFY(ConsoleTextFile(QString()).write(pathOf("empty.txt")));
        QCOMPARE(contentOf(pathOf("empty.txt")), QByteArray());
    }

    void aFileThatCannotBeWrittenIsNamed()
    {
        const QString path = pathOf("missing/console.txt");
        const ConsoleTextFile file(QStringLiteral("text"));
        QVERIFY(!file.write(path));
        QVERIFY2(file.errorString().contains(path), qPrintable(file.errorString()));
        QVERIFY(file.errorString().contains(QStringLiteral("could not be written")));
    }
};

TAVRIK_TEST_MAIN(tst_ConsoleTextFile)
#include "tst_ConsoleTextFile.moc"
