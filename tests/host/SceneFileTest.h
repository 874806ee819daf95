#pragma once

#include <QObject>
#include <QTemporaryDir>

#include <memory>

/** A test of scene files: each function gets an empty folder for them. */
class SceneFileTest : public QObject
{
    Q_OBJECT

protected:
    /** Names, a shared node, a connection and a class that Coin does not have. */
    static const char sceneText[];

    /** Writes a file into the folder; answers its path. */
    QString file(const char* name, const QByteArray& content) const;
    static QByteArray contentOf(const QString& path);

    std::unique_ptr<QTemporaryDir> m_folder;

private slots:
    void init();
};
