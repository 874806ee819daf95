#pragma once

#include "TavrikHostExport.h"

#include <QMenu>

/** The menu of the files opened last, newest first. It outlives the program in the settings. */
class TAVRIKHOST_EXPORT HostRecentFiles : public QMenu
{
    Q_OBJECT

public:
    static constexpr int Limit = 10;

    explicit HostRecentFiles(QWidget* parent = nullptr);

    /** Puts a file first. */
    void add(const QString& path);
    /** The files that still exist, newest first. */
    QStringList files() const;

signals:
    void chosen(const QString& path);

private slots:
    void fill();
    void choose(QAction* action);
};
