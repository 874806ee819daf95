#include "lib/HostScene.h"

#include "tests/host/SceneFileTest.h"
#include "tests/support/TestMain.h"

#include <Inventor/SoOutput.h>
#include <Inventor/actions/SoWriteAction.h>
#include <Inventor/nodes/SoCube.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QDir>

#include <cmath>
#include <cstdlib>

namespace {

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

/** Saving: what is read again is what was there. */
class tst_HostSceneSaving : public SceneFileTest
{
    Q_OBJECT

private slots:
    void savingAndReadingAgainLosesNothing();
    void everyExampleIsReadWithoutComplaintAndSavedWhole_data();
    void everyExampleIsReadWithoutComplaintAndSavedWhole();
    void aSavedVrmlSceneStaysVrml();
    void anInventorSceneIsConvertedToVrml();
    void anUnknownSuffixMeansInventor();
    void aFailedSaveChangesNothing();
};

void tst_HostSceneSaving::savingAndReadingAgainLosesNothing()
{
    HostScene scene;
    QVERIFY(scene.open(file("scene.iv", sceneText), nullptr));
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

void tst_HostSceneSaving::everyExampleIsReadWithoutComplaintAndSavedWhole_data()
{
    QTest::addColumn<QString>("path");
    const QDir examples(TEST_EXAMPLES);
    const QStringList names = examples.entryList({"*.iv", "*.wrl"}, QDir::Files);
    QVERIFY(names.contains("desk_lamp.iv"));
    for (const QString& name : names)
        QTest::newRow(qUtf8Printable(name)) << examples.absoluteFilePath(name);
}

void tst_HostSceneSaving::everyExampleIsReadWithoutComplaintAndSavedWhole()
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

void tst_HostSceneSaving::aSavedVrmlSceneStaysVrml()
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

void tst_HostSceneSaving::anInventorSceneIsConvertedToVrml()
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

void tst_HostSceneSaving::anUnknownSuffixMeansInventor()
{
    HostScene scene;
    const QString path = m_folder->filePath("scene.scene");
    QVERIFY(scene.save(path, nullptr));
    QVERIFY(contentOf(path).startsWith("#Inventor V2.1 ascii\n"));
}

void tst_HostSceneSaving::aFailedSaveChangesNothing()
{
    HostScene scene;
    const QString path = file("scene.iv", sceneText);
    QVERIFY(scene.open(path, nullptr));
    scene.setModified(true);
    QString error;
    QVERIFY(!scene.save(m_folder->filePath("no/such/folder/scene.iv"), &error));
    QVERIFY2(error.contains("cannot be written"), qUtf8Printable(error));
    QVERIFY(scene.isModified());
    QCOMPARE(scene.filePath(), path);
    QCOMPARE(contentOf(path), QByteArray(sceneText));
    QVERIFY(!scene.save(m_folder->path(), nullptr));
}

TAVRIK_TEST_MAIN(tst_HostSceneSaving)
#include "tst_HostSceneSaving.moc"
