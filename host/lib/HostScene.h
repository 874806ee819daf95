#pragma once

#include "TavrikHostExport.h"

#include <QObject>
#include <QString>

class SoSeparator;

/**
 * The open scene: its root, its file, whether it has been changed since it was read or saved.
 * Reads and writes Open Inventor (.iv) and VRML (.wrl) files.
 */
class TAVRIKHOST_EXPORT HostScene : public QObject
{
    Q_OBJECT

public:
    explicit HostScene(QObject* parent = nullptr);
    ~HostScene() override;

    /** Never null; an empty separator while nothing is open. Referenced by the scene. */
    SoSeparator* root() const { return m_root; }
    /** The file that save() writes; empty when the scene has none. */
    QString filePath() const { return m_filePath; }
    /** What the reader complained about in the open file, one line each; empty when nothing. */
    QString readErrors() const { return m_readErrors; }

    /**
     * Reads a file in place of the open scene. On failure the open scene stays, and `error` says
     * what was wrong, with the reader's own words. Relative references are searched beside the
     * file.
     */
    bool open(const QString& path, QString* error);
    /**
     * Writes the scene whole: the file is either the old one or the new one. The format goes by the
     * suffix; .wrl is VRML 2.0, to which other nodes are converted. On failure nothing is changed.
     */
    bool save(const QString& path, QString* error);

    bool isModified() const { return m_modified; }
    void setModified(bool modified);

signals:
    /** Before the old root goes: drop the selection and the undo entries now. */
    void rootAboutToChange();
    void rootChanged();
    void modifiedChanged(bool modified);

private:
    SoSeparator* m_root; ///< referenced
    QString m_filePath;
    QString m_readErrors;
    bool m_modified = false;
};
