#include "lib/HostScene.h"

#include "tests/support/TestMain.h"

#include <Inventor/SoInput.h>
#include <Inventor/SoOutput.h>
#include <Inventor/VRMLnodes/SoVRMLGroup.h>
#include <Inventor/actions/SoWriteAction.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/lists/SbStringList.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoFile.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <cmath>
#include <cstdlib>

namespace {

const char s_scene[] = "#Inventor V2.1 ascii\n"
                       "Separator {\n"
                       "  DEF paint Material { diffuseColor [ 1 0 0, 0 0.5 0.1 ] }\n"
                       "  Separator { USE paint DEF ball Sphere { radius 2.7182817 } }\n"
                       "  DEF box Cube { width 3 height = USE ball . radius }\n"
                       "  Gadget { fields [ SFFilePathString picture ] picture \"a/b.png\" }\n"
                       "}\n";

QStringList searchPath()
{
    const SbStringList& folders = SoInput::getDirectories();
    QStringList texts;
    for (int i = 0; i < folders.getLength(); ++i)
        texts << folders[i]->getString();
    return texts;
}

/** The scene as Coin writes it. */
QByteArray textOf(SoNode* node)
{
    SoOutput output;
    output.setBuffer(std::malloc(1024), 1024, std::realloc);
    SoWriteAction action(&output);
    action.apply(node);
    void* buffer = nullptr;
    size_t size = 0;
    output.getBuffer(buffer, size);
    const QByteArray text(static_cast<char*>(buffer), int(size));
    std::free(buffer);
    return text;
}

/** Coin normalises rotations when it reads them, and numbers the names that it makes up itself. */
bool isSameWord(const QByteArray& a, const QByteArray& b)
{
    bool areNumbers[2] = {false, false};
    const double difference = a.toDouble(&areNumbers[0]) - b.toDouble(&areNumbers[1]);
    if (areNumbers[0] && areNumbers[1])
        return std::abs(difference) < 1e-5;
    return a == b || (a.startsWith('_') && b.startsWith('_'));
}

/** The first words that differ; empty when the texts say the same. */
QString firstDifference(const QByteArray& a, const QByteArray& b)
{
    const QList<QByteArray> left = a.simplified().split(' ');
    const QList<QByteArray> right = b.simplified().split(' ');
    for (int i = 0; i < std::min(left.size(), right.size()); ++i)
        if (!isSameWord(left[i], right[i]))
            return QString::fromUtf8(left.mid(i, 8).join(' ') + " / " + right.mid(i, 8).join(' '));
    return left.size() == right.size() ? QString() : QStringLiteral("one is longer");
}

} // namespace

class tst_HostScene : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void anEmptySceneHasARoot();
    void opensAnInventorFile();
    void opensVrmlFiles_data();
    void opensVrmlFiles();
    void theOpenSceneStaysWhenAnotherCannotBeRead_data();
    void theOpenSceneStaysWhenAnotherCannotBeRead();
    void complaintsOfTheReaderAreKeptAndPassedOn();
    void referencesAreFoundBesideTheFile();
    void theSearchPathIsLeftAsItWas();
    void savingAndReadingAgainLosesNothing();
    void everyExampleIsReadWithoutComplaintAndSavedWhole_data();
    void everyExampleIsReadWithoutComplaintAndSavedWhole();
    void aSavedVrmlSceneStaysVrml();
    void anInventorSceneIsConvertedToVrml();
    void anUnknownSuffixMeansInventor();
    void aFailedSaveChangesNothing();
    void theModifiedMarkIsResetByOpenAndSave();
    void theOldRootIsAnnouncedBeforeItGoes();

private:
    QString file(const char* name, const QByteArray& content);
    QByteArray contentOf(const QString& path) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_HostScene::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QString tst_HostScene::file(const char* name, const QByteArray& content)
{
    QFile file(m_folder->filePath(name));
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    return isWritten ? file.fileName() : QString();
}

QByteArray tst_HostScene::contentOf(const QString& path) const
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

void tst_HostScene::anEmptySceneHasARoot()
{
    const HostScene scene;
    QVERIFY(scene.root());
    QCOMPARE(scene.root()->getNumChildren(), 0);
    QVERIFY(scene.filePath().isEmpty());
    QVERIFY(!scene.isModified());
}

void tst_HostScene::opensAnInventorFile()
{
    HostScene scene;
    QString error;
    const QString path = file("scene.iv", s_scene);
    QVERIFY2(scene.open(path, &error), qUtf8Printable(error));
    QCOMPARE(scene.root()->getNumChildren(), 4);
    QCOMPARE(scene.root()->getChild(2)->getName().getString(), "box");
    QCOMPARE(scene.filePath(), path);
    QCOMPARE(scene.readErrors(), QString());
}

void tst_HostScene::opensVrmlFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("type");
    QTest::newRow("VRML 1") << QByteArray("#VRML V1.0 ascii\nSeparator { Cube { } }\n") << "Cube";
    QTest::newRow("VRML 2") << QByteArray("#VRML V2.0 utf8\nShape { geometry Box { } }\n")
                            << "VRMLShape";
}

void tst_HostScene::opensVrmlFiles()
{
    QFETCH(QByteArray, content);
    HostScene scene;
    QString error;
    QVERIFY2(scene.open(file("scene.wrl", content), &error), qUtf8Printable(error));
    QVERIFY(scene.root()->getNumChildren() == 1);
    QTEST(QString(scene.root()->getChild(0)->getTypeId().getName().getString()), "type");
}

void tst_HostScene::theOpenSceneStaysWhenAnotherCannotBeRead_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("says");
    QTest::newRow("missing") << "none.iv"
                             << "There is no file";
    QTest::newRow("folder") << "."
                            << "is not a file";
    QTest::newRow("empty") << "empty.iv"
                           << "is empty";
    QTest::newRow("no scene") << "text.iv"
                              << "cannot be read as a scene";
    QTest::newRow("broken") << "broken.iv"
                            << "Occurred at line";
}

void tst_HostScene::theOpenSceneStaysWhenAnotherCannotBeRead()
{
    QFETCH(QString, path);
    QFETCH(QString, says);
    file("empty.iv", "");
    file("text.iv", "Dear reader, this is no scene.\n");
    file("broken.iv", "#Inventor V2.1 ascii\nSeparator { Cube { width \"wide\" } \n");
    HostScene scene;
    QVERIFY(scene.open(file("scene.iv", s_scene), nullptr));
    const SoSeparator* root = scene.root();
    QSignalSpy changed(&scene, SIGNAL(rootChanged()));
    QString error;
    QVERIFY(!scene.open(QDir(m_folder->path()).absoluteFilePath(path), &error));
    QVERIFY2(error.contains(says), qUtf8Printable(error));
    QCOMPARE(scene.root(), root);
    QVERIFY(scene.filePath().endsWith("scene.iv"));
    QCOMPARE(changed.count(), 0);
}

void tst_HostScene::complaintsOfTheReaderAreKeptAndPassedOn()
{
    int passedOn = 0;
    SoErrorCB* const previous = SoReadError::getHandlerCallback();
    void* const previousData = SoReadError::getHandlerData();
    SoErrorCB* const counter = [](const SoError*, void* count) { ++*static_cast<int*>(count); };
    SoReadError::setHandlerCallback(counter, &passedOn);
    HostScene scene;
    const bool isOpen = scene.open(
        file("odd.iv",
             "#Inventor V2.1 ascii\nSeparator { File { name \"nowhere.iv\" } Cube { } }\n"),
        nullptr);
    const bool isRestored =
        SoReadError::getHandlerCallback() == counter && SoReadError::getHandlerData() == &passedOn;
    SoReadError::setHandlerCallback(previous, previousData);
    QVERIFY(isOpen);
    QVERIFY(isRestored);
    QVERIFY(passedOn > 0);
    QVERIFY2(scene.readErrors().contains("nowhere.iv"), qUtf8Printable(scene.readErrors()));
    QCOMPARE(scene.readErrors().split('\n').size(), passedOn);
}

void tst_HostScene::referencesAreFoundBesideTheFile()
{
    file("part.iv", "#Inventor V2.1 ascii\nDEF fromPart Cube { }\n");
    HostScene scene;
    QVERIFY(scene.open(
        file("whole.iv", "#Inventor V2.1 ascii\nSeparator { File { name \"part.iv\" } }\n"),
        nullptr));
    QCOMPARE(scene.readErrors(), QString());
    QVERIFY(SoNode::getByName("fromPart"));
}

void tst_HostScene::theSearchPathIsLeftAsItWas()
{
    const QByteArray own = QFile::encodeName(m_folder->path());
    const QStringList before = searchPath();
    HostScene scene;
    QVERIFY(scene.open(file("scene.iv", s_scene), nullptr));
    QCOMPARE(searchPath(), before);
    SoInput::addDirectoryLast("/usr");
    SoInput::addDirectoryLast(own.constData());
    QVERIFY(scene.open(file("scene.iv", s_scene), nullptr));
    const QStringList after = searchPath();
    SoInput::removeDirectory(own.constData());
    SoInput::removeDirectory("/usr");
    QCOMPARE(after, before + QStringList({"/usr", m_folder->path()}));
}

void tst_HostScene::savingAndReadingAgainLosesNothing()
{
    HostScene scene;
    QVERIFY(scene.open(file("scene.iv", s_scene), nullptr));
    const QByteArray before = textOf(scene.root());
    const QString copy = m_folder->filePath("copy.iv");
    QString error;
    QVERIFY2(scene.save(copy, &error), qUtf8Printable(error));
    QVERIFY(contentOf(copy).startsWith("#Inventor V2.1 ascii\n"));
    QCOMPARE(scene.filePath(), copy);
    HostScene second;
    QVERIFY(second.open(copy, nullptr));
    QCOMPARE(textOf(second.root()), before);
    QVERIFY(before.contains("USE paint"));
    QVERIFY(before.contains("a/b.png"));
}

void tst_HostScene::everyExampleIsReadWithoutComplaintAndSavedWhole_data()
{
    QTest::addColumn<QString>("path");
    const QDir examples(TEST_EXAMPLES);
    const QStringList names = examples.entryList({"*.iv", "*.wrl"}, QDir::Files);
    QVERIFY(names.contains("desk_lamp.iv"));
    for (const QString& name : names)
        QTest::newRow(qUtf8Printable(name)) << examples.absoluteFilePath(name);
}

void tst_HostScene::everyExampleIsReadWithoutComplaintAndSavedWhole()
{
    QFETCH(QString, path);
    HostScene scene;
    QString error;
    QVERIFY2(scene.open(path, &error), qUtf8Printable(error));
    QCOMPARE(scene.readErrors(), QString());
    const QByteArray before = textOf(scene.root());
    const QString copy = m_folder->filePath(QFileInfo(path).fileName());
    QVERIFY(scene.save(copy, nullptr));
    HostScene second;
    QVERIFY2(second.open(copy, &error), qUtf8Printable(error));
    QCOMPARE(firstDifference(textOf(second.root()), before), QString());
}

void tst_HostScene::aSavedVrmlSceneStaysVrml()
{
    HostScene scene;
    QVERIFY(scene.open(file("scene.wrl", "#VRML V2.0 utf8\n"
                                         "DEF one Transform { translation 1 2 3 children [\n"
                                         "  DEF shape Shape { geometry Box { size 1 1 4 } } ] }\n"
                                         "Transform { children [ USE shape ] }\n"),
                       nullptr));
    const QByteArray before = textOf(scene.root());
    const QString copy = m_folder->filePath("copy.WRL");
    QVERIFY(scene.save(copy, nullptr));
    const QByteArray written = contentOf(copy);
    QVERIFY2(written.startsWith("#VRML V2.0 utf8\n"), written.constData());
    QVERIFY2(!written.contains("Separator"), written.constData());
    QVERIFY2(!written.contains("VRMLTransform"), written.constData());
    QCOMPARE(written.count("Box"), 1);
    HostScene second;
    QString error;
    QVERIFY2(second.open(copy, &error), qUtf8Printable(error));
    QCOMPARE(textOf(second.root()), before);
}

void tst_HostScene::anInventorSceneIsConvertedToVrml()
{
    HostScene scene;
    QVERIFY(scene.open(file("scene.iv", "#Inventor V2.1 ascii\nSeparator { Cube { width 7 } }\n"),
                       nullptr));
    const QString copy = m_folder->filePath("copy.wrl");
    QVERIFY(scene.save(copy, nullptr));
    const QByteArray written = contentOf(copy);
    QVERIFY2(written.startsWith("#VRML V2.0 utf8\n"), written.constData());
    QVERIFY2(written.contains("Box") && written.contains("7"), written.constData());
    QVERIFY2(!written.contains("Separator"), written.constData());
    QCOMPARE(scene.root()->getChild(0)->getTypeId(), SoCube::getClassTypeId());
    HostScene second;
    QVERIFY(second.open(copy, nullptr));
    QVERIFY(second.root()->getNumChildren() > 0);
}

void tst_HostScene::anUnknownSuffixMeansInventor()
{
    HostScene scene;
    const QString path = m_folder->filePath("scene.scene");
    QVERIFY(scene.save(path, nullptr));
    QVERIFY(contentOf(path).startsWith("#Inventor V2.1 ascii\n"));
}

void tst_HostScene::aFailedSaveChangesNothing()
{
    HostScene scene;
    const QString path = file("scene.iv", s_scene);
    QVERIFY(scene.open(path, nullptr));
    scene.setModified(true);
    QString error;
    QVERIFY(!scene.save(m_folder->filePath("no/such/folder/scene.iv"), &error));
    QVERIFY2(error.contains("cannot be written"), qUtf8Printable(error));
    QVERIFY(scene.isModified());
    QCOMPARE(scene.filePath(), path);
    QCOMPARE(contentOf(path), QByteArray(s_scene));
    QVERIFY(!scene.save(m_folder->path(), nullptr));
}

void tst_HostScene::theModifiedMarkIsResetByOpenAndSave()
{
    HostScene scene;
    QSignalSpy modified(&scene, SIGNAL(modifiedChanged(bool)));
    scene.setModified(true);
    scene.setModified(true);
    QCOMPARE(modified.count(), 1);
    QVERIFY(scene.save(m_folder->filePath("scene.iv"), nullptr));
    QVERIFY(!scene.isModified());
    scene.setModified(true);
    QVERIFY(scene.open(m_folder->filePath("scene.iv"), nullptr));
    QVERIFY(!scene.isModified());
    QCOMPARE(modified.count(), 4);
}

void tst_HostScene::theOldRootIsAnnouncedBeforeItGoes()
{
    HostScene scene;
    QVERIFY(scene.open(file("scene.iv", s_scene), nullptr));
    int oldChildren = -1;
    connect(&scene, &HostScene::rootAboutToChange, this,
            [&] { oldChildren = scene.root()->getNumChildren(); });
    QVERIFY(
        scene.open(file("other.iv", "#Inventor V2.1 ascii\nSeparator { Cube { } }\n"), nullptr));
    QCOMPARE(oldChildren, 4);
    QCOMPARE(scene.root()->getNumChildren(), 1);
}

TAVRIK_TEST_MAIN(tst_HostScene)
#include "tst_HostScene.moc"
