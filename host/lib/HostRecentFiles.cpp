#include "lib/HostRecentFiles.h"

#include "lib/HostSettings.h"

#include <QFileInfo>

namespace {
const char* const Key = "recentFiles";
}

HostRecentFiles::HostRecentFiles(QWidget* parent) : QMenu(tr("Open &Recent"), parent)
{
    setObjectName(QStringLiteral("menuRecentFiles"));
    setToolTipsVisible(true);
    connect(this, SIGNAL(aboutToShow()), this, SLOT(fill()));
    connect(this, SIGNAL(triggered(QAction*)), this, SLOT(choose(QAction*)));
    fill();
}

void HostRecentFiles::add(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList paths = files();
    paths.removeAll(absolute);
    paths.prepend(absolute);
    HostSettings().setValue(Key, QStringList(paths.mid(0, Limit)));
    fill();
}

QStringList HostRecentFiles::files() const
{
    QStringList existing;
    for (const QString& path : HostSettings().value(Key).toStringList())
        if (QFileInfo(path).isFile() && existing.size() < Limit)
            existing.append(path);
    return existing;
}

void HostRecentFiles::fill()
{
    clear();
    for (const QString& path : files()) {
        // An "&" in a file name is no mnemonic.
        QString text = QFileInfo(path).fileName().replace('&', QLatin1String("&&"));
        QAction* action = addAction(text);
        action->setData(path);
        action->setToolTip(path);
    }
    menuAction()->setEnabled(!isEmpty());
}

void HostRecentFiles::choose(QAction* action)
{
    emit chosen(action->data().toString());
}
