#include "lib/HostFileMenu.h"

#include "lib/HostScene.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>

namespace {

const char* const NameFilter =
    "Scenes (*.iv *.wrl);;Open Inventor (*.iv);;VRML (*.wrl);;All files (*)";
const char* const VrmlFilter = "VRML (*.wrl)";

/** A line edit commits when it loses the focus: a half-made edit must not miss the file. */
void commitPendingEdit()
{
    if (QWidget* focused = QApplication::focusWidget()) {
        focused->clearFocus();
        focused->setFocus();
    }
}

/** Shows by the mouse pointer that the program is at work, for the life of this object. */
class BusyPointer
{
public:
    BusyPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyPointer() { QApplication::restoreOverrideCursor(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

/** For a name without one; the format that a file is written in goes by it. */
QString suffixOf(const QString& filter)
{
    return filter == QLatin1String(VrmlFilter) ? QStringLiteral("wrl") : QStringLiteral("iv");
}

/** A box that lists much is no longer a box: what exceeds it goes behind "Show Details...". */
constexpr int LinesInBox = 8;

} // namespace

HostFileMenu::HostFileMenu(HostScene& scene, QWidget* parent)
    : QMenu(tr("&File"), parent), m_scene(scene), m_recentFiles(this)
{
    setObjectName(QStringLiteral("menuFile"));
    addEntries();
    connect(&m_recentFiles, SIGNAL(chosen(QString)), this, SLOT(openRecent(QString)));
}

void HostFileMenu::addEntries()
{
    addAction(tr("&Open..."), this, SLOT(open()), QKeySequence::Open)
        ->setObjectName(QStringLiteral("actionOpen"));
    addMenu(&m_recentFiles);
    addSeparator();
    addAction(tr("&Save"), this, SLOT(save()), QKeySequence::Save)
        ->setObjectName(QStringLiteral("actionSave"));
    addAction(tr("Save &As..."), this, SLOT(saveAs()), QKeySequence(tr("Ctrl+Shift+S")))
        ->setObjectName(QStringLiteral("actionSaveAs"));
    addSeparator();
    addAction(tr("&Quit"), this, SIGNAL(quitRequested()), QKeySequence(tr("Ctrl+Q")))
        ->setObjectName(QStringLiteral("actionQuit"));
}

void HostFileMenu::open()
{
    const QString folder = QFileInfo(m_scene.filePath()).path();
    QFileDialog dialog(parentWidget(), tr("Open a scene"), folder, tr(NameFilter));
    dialog.setObjectName(QStringLiteral("openDialog"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (dialog.exec() == QDialog::Accepted)
        openFile(dialog.selectedFiles().constFirst());
}

void HostFileMenu::openRecent(const QString& path)
{
    openFile(path);
}

bool HostFileMenu::openFile(const QString& path)
{
    return mayDiscard() && read(path);
}

bool HostFileMenu::read(const QString& path)
{
    QString error;
    if (!openAtWork(path, &error)) {
        emit message(QString());
        tell(QMessageBox::Critical, tr("\"%1\" cannot be opened.").arg(path), error);
        return false;
    }
    m_recentFiles.add(path);
    emit opened();
    emit message(tr("Opened %1").arg(path));
    if (!m_scene.readErrors().isEmpty())
        tellReadErrors();
    return true;
}

bool HostFileMenu::openAtWork(const QString& path, QString* error)
{
    const BusyPointer busy;
    emit message(tr("Opening %1 ...").arg(path));
    return m_scene.open(path, error);
}

bool HostFileMenu::saveAtWork(const QString& path, QString* error)
{
    const BusyPointer busy;
    emit message(tr("Saving %1 ...").arg(path));
    return m_scene.save(path, error);
}

void HostFileMenu::tellReadErrors()
{
    const QStringList lines = m_scene.readErrors().split('\n', Qt::SkipEmptyParts);
    const QString name = QFileInfo(m_scene.filePath()).fileName();
    const QString text = lines.size() == 1
                             ? tr("The reader had one complaint about \"%1\".").arg(name)
                             : tr("The reader had %1 complaints about \"%2\".")
                                   .arg(QString::number(lines.size()), name);
    emit message(text);
    tell(QMessageBox::Warning, text, m_scene.readErrors());
}

bool HostFileMenu::mayDiscard()
{
    commitPendingEdit();
    if (!m_scene.isModified())
        return true;
    QMessageBox box(QMessageBox::Question, tr("Unsaved changes"),
                    tr("The scene has been changed. Save the changes?"),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, parentWidget());
    box.setObjectName(QStringLiteral("unsavedChangesBox"));
    box.setDefaultButton(QMessageBox::Save);
    const int answer = box.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

bool HostFileMenu::save()
{
    return m_scene.filePath().isEmpty() ? saveAs() : write(m_scene.filePath());
}

bool HostFileMenu::saveAs()
{
    QFileDialog dialog(parentWidget(), tr("Save the scene"), m_scene.filePath(), tr(NameFilter));
    dialog.setObjectName(QStringLiteral("saveDialog"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffixOf(QString()));
    connect(&dialog, &QFileDialog::filterSelected, &dialog,
            [&dialog](const QString& filter) { dialog.setDefaultSuffix(suffixOf(filter)); });
    return dialog.exec() == QDialog::Accepted && write(dialog.selectedFiles().constFirst());
}

bool HostFileMenu::write(const QString& path)
{
    commitPendingEdit();
    QString error;
    if (!saveAtWork(path, &error)) {
        emit message(QString());
        tell(QMessageBox::Critical, tr("\"%1\" cannot be saved.").arg(path), error);
        return false;
    }
    m_recentFiles.add(path);
    emit saved();
    emit message(tr("Saved %1").arg(path));
    return true;
}

/** Does not wait for the answer, so that a scene given on the command line can be refused, too. */
void HostFileMenu::tell(QMessageBox::Icon icon, const QString& text, const QString& details)
{
    auto* box = new QMessageBox(icon, tr("Tavrik"), text, QMessageBox::Ok, parentWidget());
    box->setObjectName(QStringLiteral("fileMessageBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    const QStringList lines = details.split('\n', Qt::SkipEmptyParts);
    box->setInformativeText(QStringList(lines.mid(0, LinesInBox)).join('\n'));
    if (lines.size() > LinesInBox)
        box->setDetailedText(details);
    box->open();
}
