#include "lib/HostScene.h"
#include "lib/HostSceneDepth.h"

#include "tests/host/SceneFileTest.h"
#include "tests/support/TestMain.h"

#include <Inventor/SoInput.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/lists/SbStringList.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QDir>
#include <QSignalSpy>

namespace {

QStringList searchPath()
{
    const SbStringList& folders = SoInput::getDirectories();
    QStringList texts;
    for (int i = 0; i < folders.getLength(); ++i)
        texts << folders[i]->getString();
    return texts;
}

/** Separators one inside the other, a cube in the last. */
QByteArray nested(int levels)
{
    return "#Inventor V2.1 ascii\n" + QByteArray("Separator { ").repeated(levels - 1) + "Cube { }" +
           QByteArray(" }").repeated(levels - 1) + "\n";
}

/** As many levels, which the text of the file does not show. */
QByteArray chained(int levels)
{
    QByteArray text = "#Inventor V2.1 ascii\nSeparator {\n  Switch { DEF g0 Group { }\n";
    for (int i = 1; i < levels; ++i)
        text +=
            "DEF g" + QByteArray::number(i) + " Group { USE g" + QByteArray::number(i - 1) + " }\n";
    return text + "} }\n";
}

} // namespace

/** Opening files: what is read, what is said of it, and what stays when it fails. */
class tst_HostScene : public SceneFileTest
{
    Q_OBJECT

private slots:
    void anEmptySceneHasARoot();
    void opensAnInventorFile();
    void opensVrmlFiles_data();
    void opensVrmlFiles();
    void theOpenSceneStaysWhenAnotherCannotBeRead_data();
    void theOpenSceneStaysWhenAnotherCannotBeRead();
    void aSceneOfAsManyLevelsAsCanBeShownIsOpenedAndSaved();
    void aSceneWithoutNodesIsNoError();
    void aRestThatIsNotReadIsAComplaint();
    void complaintsOfTheReaderAreKeptAndPassedOn();
    void referencesAreFoundBesideTheFile();
    void theSearchPathIsLeftAsItWas();
    void theModifiedMarkIsResetByOpenAndSave();
    void theOldRootIsAnnouncedBeforeItGoes();
};

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
    const QString path = file("scene.iv", sceneText);
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
    QTest::newRow("truncated") << "truncated.iv"
                               << "cannot be read as a scene";
    QTest::newRow("garbage below a header") << "garbage.iv"
                                            << "cannot be read as a scene";
    QTest::newRow("deep") << "deep.iv"
                          << "nested too deeply";
    QTest::newRow("deep VRML") << "deep.wrl"
                               << "nested too deeply";
    QTest::newRow("deep by references") << "chain.iv"
                                        << "nested too deeply";
    QTest::newRow("without end") << "cycle.iv"
                                 << "contains itself";
    QTest::newRow("including itself") << "itself.iv"
                                      << "nested too deeply";
}

void tst_HostScene::theOpenSceneStaysWhenAnotherCannotBeRead()
{
    QFETCH(QString, path);
    QFETCH(QString, says);
    file("empty.iv", "");
    file("text.iv", "Dear reader, this is no scene.\n");
    file("broken.iv", "#Inventor V2.1 ascii\nSeparator { Cube { width \"wide\" } \n");
    file("truncated.iv", QByteArray(sceneText).left(150));
    file("garbage.iv", "#Inventor V2.1 ascii\n\x01\xfe}{]\"[\x7f\x80 \n");
    file("deep.iv", nested(100000));
    file("deep.wrl", "#VRML V2.0 utf8\n" + QByteArray("Group { children ").repeated(100000));
    file("chain.iv", chained(100000));
    file("cycle.iv", "#Inventor V2.1 ascii\nDEF ring Separator { Cube { } USE ring }\n");
    file("itself.iv", "#Inventor V2.1 ascii\nSeparator { File { name \"itself.iv\" } }\n");
    HostScene scene;
    QVERIFY(scene.open(file("scene.iv", sceneText), nullptr));
    const SoSeparator* root = scene.root();
    QSignalSpy changed(&scene, SIGNAL(rootChanged()));
    QString error;
    QVERIFY(!scene.open(QDir(m_folder->path()).absoluteFilePath(path), &error));
    QVERIFY2(error.contains(says), qUtf8Printable(error));
    QCOMPARE(scene.root(), root);
    QVERIFY(scene.filePath().endsWith("scene.iv"));
    QCOMPARE(changed.count(), 0);
}

void tst_HostScene::aSceneOfAsManyLevelsAsCanBeShownIsOpenedAndSaved()
{
    HostScene scene;
    QString error;
    QVERIFY2(scene.open(file("limit.iv", nested(HostSceneDepth::Limit)), &error),
             qUtf8Printable(error));
    QVERIFY2(scene.save(m_folder->filePath("copy.iv"), &error), qUtf8Printable(error));
    QVERIFY2(scene.open(m_folder->filePath("copy.iv"), &error), qUtf8Printable(error));
    QVERIFY(!scene.open(file("more.iv", nested(HostSceneDepth::Limit + 1)), &error));
    QVERIFY2(error.contains("nested too deeply"), qUtf8Printable(error));
}

void tst_HostScene::aSceneWithoutNodesIsNoError()
{
    HostScene scene;
    QVERIFY(scene.open(file("nothing.iv", "#Inventor V2.1 ascii\n\n# nothing yet\n"), nullptr));
    QVERIFY(scene.open(file("one.iv", "#Inventor V2.1 ascii\nSeparator { }\n"), nullptr));
    QCOMPARE(scene.readErrors(), QString());
}

void tst_HostScene::aRestThatIsNotReadIsAComplaint()
{
    HostScene scene;
    QVERIFY(scene.open(
        file("rest.iv", "#Inventor V2.1 ascii\nSeparator { Cube { } }\n} Sphere { }\n"), nullptr));
    QVERIFY2(scene.readErrors().contains("rest of the file"), qUtf8Printable(scene.readErrors()));
    QVERIFY2(scene.readErrors().contains("line 3"), qUtf8Printable(scene.readErrors()));
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
    QVERIFY(scene.open(file("scene.iv", sceneText), nullptr));
    QCOMPARE(searchPath(), before);
    SoInput::addDirectoryLast("/usr");
    SoInput::addDirectoryLast(own.constData());
    QVERIFY(scene.open(file("scene.iv", sceneText), nullptr));
    const QStringList after = searchPath();
    SoInput::removeDirectory(own.constData());
    SoInput::removeDirectory("/usr");
    QCOMPARE(after, before + QStringList({"/usr", m_folder->path()}));
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
    QVERIFY(scene.open(file("scene.iv", sceneText), nullptr));
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
