#include "lib/HostHelpMenu.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QMessageBox>
#include <QUrl>

#include <algorithm>

HostHelpMenu::HostHelpMenu(QWidget* parent) : QMenu(tr("&Help"), parent)
{
    setObjectName(QStringLiteral("menuHelp"));
    addAction(tr("&About Tavrik"), this, SLOT(about()))
        ->setObjectName(QStringLiteral("actionAbout"));
}

void HostHelpMenu::setManual(const QStringList& candidates)
{
    const auto found = std::find_if(candidates.begin(), candidates.end(),
                                    [](const QString& path) { return QFileInfo(path).isFile(); });
    if (m_manual.isEmpty() && found != candidates.end()) {
        m_manual = *found;
        QAction* action = addAction(tr("&User manual"), this, SLOT(openManual()));
        action->setShortcut(QKeySequence::HelpContents);
        action->setObjectName(QStringLiteral("actionManual"));
    }
}

void HostHelpMenu::openManual()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(m_manual).absoluteFilePath()));
}

void HostHelpMenu::about()
{
    auto* box = new QMessageBox(
        QMessageBox::NoIcon, tr("About Tavrik"),
        tr("<h3>Tavrik %1</h3><p>Inspects and tunes the scene graph of a Coin application.</p>")
            .arg(QStringLiteral(TAVRIK_VERSION)),
        QMessageBox::Ok, parentWidget());
    box->setObjectName(QStringLiteral("aboutBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}
