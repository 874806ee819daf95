#include "tests/host/SceneFileTest.h"

#include <QFile>
#include <QtTest>

const char SceneFileTest::sceneText[] =
    "#Inventor V2.1 ascii\n"
    "Separator {\n"
    "  DEF paint Material { diffuseColor [ 1 0 0, 0 0.5 0.1 ] }\n"
    "  Separator { USE paint DEF ball Sphere { radius 2.7182817 } }\n"
    "  DEF box Cube { width 3 height = USE ball . radius }\n"
    "  Gadget { fields [ SFFilePathString picture ] picture \"a/b.png\" }\n"
    "}\n";

void SceneFileTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

QString SceneFileTest::file(const char* name, const QByteArray& content) const
{
    QFile file(m_folder->filePath(name));
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    return isWritten ? file.fileName() : QString();
}

QByteArray SceneFileTest::contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}
