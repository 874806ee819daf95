#pragma once

#include <QByteArray>
#include <QString>

class SoGroup;

/** Writes a scene as the bytes of a file, in the format that the file's suffix asks for. */
class HostSceneWriter
{
public:
    /** ".wrl" is VRML 2.0, anything else is Open Inventor. The scene is only read. */
    static QByteArray write(SoGroup& root, const QString& path);

private:
    static QByteArray writeInventor(SoGroup& root);
    static QByteArray writeVrml(SoGroup& root);
};
