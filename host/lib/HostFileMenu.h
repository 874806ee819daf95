#pragma once

#include "TavrikHostExport.h"

#include "lib/HostRecentFiles.h"

#include <QMenu>
#include <QMessageBox>

class HostScene;

/**
 * The File menu and what stands behind it: opening and saving the scene, with the questions and
 * messages that belong to it.
 */
class TAVRIKHOST_EXPORT HostFileMenu : public QMenu
{
    Q_OBJECT

public:
    /** The scene is not owned. */
    explicit HostFileMenu(HostScene& scene, QWidget* parent = nullptr);

    /** Opens a file unless the user wants to keep a changed scene; says why when it cannot. */
    bool openFile(const QString& path);
    /** True when the scene is unchanged or the user has saved it or lets the changes go. */
    bool mayDiscard();

public slots:
    void open();
    bool save();
    bool saveAs();

signals:
    void opened();
    void saved();
    void quitRequested();
    /** For the status bar. */
    void message(const QString& text);

private slots:
    void openRecent(const QString& path);

private:
    void addEntries();
    bool read(const QString& path);
    bool write(const QString& path);
    // A long work shows that it is going on.
    bool openAtWork(const QString& path, QString* error);
    bool saveAtWork(const QString& path, QString* error);
    void tellReadErrors();
    void tell(QMessageBox::Icon icon, const QString& text, const QString& details);

    HostScene& m_scene;
    HostRecentFiles m_recentFiles;
};
