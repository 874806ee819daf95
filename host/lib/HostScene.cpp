#include "lib/HostScene.h"

#include "lib/HostSceneReader.h"
#include "lib/HostSceneWriter.h"

#include <Inventor/nodes/SoSeparator.h>

#include <QSaveFile>

HostScene::HostScene(QObject* parent) : QObject(parent), m_root(new SoSeparator)
{
    m_root->ref();
}

HostScene::~HostScene()
{
    m_root->unref();
}

bool HostScene::open(const QString& path, QString* error)
{
    HostSceneReader reader;
    SoSeparator* root = reader.read(path);
    if (!root) {
        if (error)
            *error = reader.error();
        return false;
    }
    root->ref();
    emit rootAboutToChange();
    m_root->unref();
    m_root = root;
    m_filePath = path;
    m_readErrors = reader.complaints().join(QLatin1Char('\n'));
    setModified(false);
    emit rootChanged();
    return true;
}

bool HostScene::save(const QString& path, QString* error)
{
    const QByteArray bytes = HostSceneWriter::write(*m_root, path);
    QSaveFile file(path);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    if (!isWritten) {
        if (error)
            *error = tr("\"%1\" cannot be written: %2.").arg(path, file.errorString());
        return false;
    }
    m_filePath = path;
    setModified(false);
    return true;
}

void HostScene::setModified(bool modified)
{
    if (modified == m_modified)
        return;
    m_modified = modified;
    emit modifiedChanged(modified);
}
