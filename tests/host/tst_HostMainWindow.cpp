#include "tests/support/TestMain.h"

#include "lib/HostMainWindow.h"
#include "lib/HostSettings.h"

#include <TvkCommand.h>

#include <Inventor/SoPath.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QDockWidget>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTableView>
#include <QTemporaryDir>
#include <QTreeView>
#include <QUndoView>

namespace {

const char* const ConeScene = "#Inventor V2.1 ascii\n"
                              "Separator {\n"
                              "  DEF Group Separator { DEF Cone Cone { height 3 } Cube {} }\n"
                              "}\n";

class SetHeight : public TvkCommand
{
public:
    explicit SetHeight(SoCone& cone) : TvkCommand(&cone.height), m_cone(cone) {}
    void execute() override { m_cone.height = 7; }
    void undo() override { m_cone.height = 3; }
    void redo() override { execute(); }

private:
    SoCone& m_cone;
};

/** Presses a button of the box that the code under test is about to wait for. */
void answerNextBox(QMessageBox::StandardButton button)
{
    QTimer::singleShot(0, qApp, [button] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
}

} // namespace

class tst_HostMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void theTreeShowsTheOpenedScene();
    void selectingARowSelectsItsNode();
    void selectingAFieldRowSelectsTheField();
    void selectingAnotherNodeDropsTheField();
    void theDeathOfTheSelectedNodeClearsTheFields();
    void pickingSelectsTheRow();
    void pickingNothingClearsTheSelection();
    void anEditMarksTheTitle();
    void aWriteWithoutACommandMarksTheTitle();
    void keepsTheMarkWhenAnEditIsUndone();
    void savingTakesTheMarkAway();
    void anUnchangedSceneIsClosedWithoutAQuestion();
    void closingAChangedSceneAsks_data();
    void closingAChangedSceneAsks();
    void cancellingKeepsTheChangedSceneOpen();
    void aFileThatCannotBeReadLeavesTheSceneOpen();
    void aDroppedFileIsOpened();
    void severalDroppedFilesAreRefused();
    void anotherSceneLetsGoOfTheOldOneFirst();
    void theLayoutSurvivesARestart();
    void resettingTheLayoutBringsTheDocksBack();
    void anEmptyDockStaysHidden();
    void aDockInUseSurvivesTheReset();
    void undoReachesTheStackFromACommittedLine();
    void undoBelongsToALineThatIsBeingTypedInto();
    void aFolderWithoutPluginsIsTold();
    void openedFilesAreRemembered();
    void missingFilesAreForgotten();
    void onlyTenFilesAreRemembered();

private:
    template <class Widget>
    Widget* child(const char* name) const
    {
        auto* widget = m_window->findChild<Widget*>(QLatin1String(name));
        return widget ? widget : (qFatal("no widget %s", name), nullptr);
    }
    QString write(const QString& name, const QByteArray& text) const;
    QString firstLineOf(const QString& path) const;
    QModelIndex row(const char* nodeName) const;
    int fieldRow(const char* name) const;
    void selectField(const char* name) const;
    SoCone& cone() const;
    void edit();
    void restart();

    QTemporaryDir m_folder;
    QString m_file;
    std::unique_ptr<HostMainWindow> m_window;
};

void tst_HostMainWindow::initTestCase()
{
    qRegisterMetaType<const SoPath*>("const SoPath*");
    QVERIFY(m_folder.isValid());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.filePath("settings"));
    m_file = write(QStringLiteral("cone.iv"), ConeScene);
}

void tst_HostMainWindow::init()
{
    HostSettings().clear();
    write(QStringLiteral("cone.iv"), ConeScene);
    restart();
    QVERIFY(m_window->openFile(m_file));
}

void tst_HostMainWindow::cleanup()
{
    m_window.reset();
}

void tst_HostMainWindow::restart()
{
    m_window.reset();
    m_window = std::make_unique<HostMainWindow>();
    m_window->setView(new QWidget);
    m_window->restoreLayout();
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
}

QString tst_HostMainWindow::write(const QString& name, const QByteArray& text) const
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QFile::WriteOnly) || file.write(text) != text.size()) {
        qFatal("the scene cannot be written");
    }
    return file.fileName();
}

QString tst_HostMainWindow::firstLineOf(const QString& path) const
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
}

QModelIndex tst_HostMainWindow::row(const char* nodeName) const
{
    const QAbstractItemModel& model = *child<QTreeView>("sceneView")->model();
    return model
        .match(model.index(0, HostSceneModel::NameColumn), Qt::DisplayRole, QLatin1String(nodeName),
               1, Qt::MatchExactly | Qt::MatchRecursive)
        .value(0);
}

int tst_HostMainWindow::fieldRow(const char* name) const
{
    const QAbstractItemModel& model = *child<QTableView>("fieldView")->model();
    return model
        .match(model.index(0, HostFieldModel::NameColumn), Qt::DisplayRole, QLatin1String(name))
        .value(0)
        .row();
}

void tst_HostMainWindow::selectField(const char* name) const
{
    child<QTableView>("fieldView")->selectRow(fieldRow(name));
}

SoCone& tst_HostMainWindow::cone() const
{
    return *static_cast<SoCone*>(SoNode::getByName("Cone"));
}

void tst_HostMainWindow::edit()
{
    m_window->services().pushCommand(new SetHeight(cone()));
}

void tst_HostMainWindow::theTreeShowsTheOpenedScene()
{
    QVERIFY(row("Cone").isValid());
    QVERIFY(m_window->windowTitle().contains("cone.iv"));
}

void tst_HostMainWindow::selectingARowSelectsItsNode()
{
    QSignalSpy marked(m_window.get(), SIGNAL(nodeSelected(const SoPath*)));
    child<QTreeView>("sceneView")->setCurrentIndex(row("Cone"));
    QCOMPARE(m_window->services().selectedNode(), static_cast<SoNode*>(&cone()));
    QCOMPARE(marked.size(), 1);
    QVERIFY(fieldRow("bottomRadius") >= 0);
}

void tst_HostMainWindow::selectingAFieldRowSelectsTheField()
{
    child<QTreeView>("sceneView")->setCurrentIndex(row("Cone"));
    selectField("bottomRadius");
    QCOMPARE(m_window->services().selectedField(), static_cast<SoField*>(&cone().bottomRadius));
}

void tst_HostMainWindow::selectingAnotherNodeDropsTheField()
{
    selectingAFieldRowSelectsTheField();
    child<QTreeView>("sceneView")->setCurrentIndex(row("Group"));
    QCOMPARE(m_window->services().selectedField(), nullptr);
    QVERIFY(!child<QTableView>("fieldView")->selectionModel()->hasSelection());
}

void tst_HostMainWindow::theDeathOfTheSelectedNodeClearsTheFields()
{
    auto* lonely = new SoCone;
    lonely->ref();
    m_window->services().selectNode(lonely);
    QVERIFY(child<QTableView>("fieldView")->model()->rowCount() > 0);
    lonely->unref();
    QTRY_COMPARE(child<QTableView>("fieldView")->model()->rowCount(), 0);
}

void tst_HostMainWindow::pickingSelectsTheRow()
{
    auto* tree = child<QTreeView>("sceneView");
    tree->collapseAll();
    auto* group = static_cast<SoSeparator*>(SoNode::getByName("Group"));
    SoPath* path = new SoPath(m_window->scene().root());
    path->ref();
    path->append(group);
    path->append(&cone());
    m_window->selectPath(path);
    path->unref();
    QCOMPARE(tree->currentIndex().siblingAtColumn(0), row("Cone").siblingAtColumn(0));
    QVERIFY(tree->visualRect(tree->currentIndex()).isValid());
    QCOMPARE(m_window->services().selectedNode(), static_cast<SoNode*>(&cone()));
}

void tst_HostMainWindow::pickingNothingClearsTheSelection()
{
    child<QTreeView>("sceneView")->setCurrentIndex(row("Cone"));
    QSignalSpy marked(m_window.get(), SIGNAL(nodeSelected(const SoPath*)));
    m_window->selectPath(nullptr);
    QCOMPARE(m_window->services().selectedNode(), nullptr);
    QVERIFY(!child<QTreeView>("sceneView")->selectionModel()->hasSelection());
    QCOMPARE(marked.size(), 1);
}

void tst_HostMainWindow::anEditMarksTheTitle()
{
    QVERIFY(!m_window->isWindowModified());
    edit();
    QVERIFY(m_window->isWindowModified());
}

void tst_HostMainWindow::aWriteWithoutACommandMarksTheTitle()
{
    child<QTreeView>("sceneView")->setCurrentIndex(row("Cone"));
    selectField("bottomRadius");
    QVERIFY(!m_window->isWindowModified());
    cone().bottomRadius = 4;
    QVERIFY(m_window->isWindowModified());
}

void tst_HostMainWindow::keepsTheMarkWhenAnEditIsUndone()
{
    edit();
    QTest::keyClick(m_window.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(cone().height.getValue(), 3.0f);
    QVERIFY(m_window->isWindowModified());
}

void tst_HostMainWindow::savingTakesTheMarkAway()
{
    edit();
    child<QAction>("actionSave")->trigger();
    QVERIFY(!m_window->isWindowModified());
    QVERIFY(firstLineOf(m_file).contains("height 7"));
}

void tst_HostMainWindow::anUnchangedSceneIsClosedWithoutAQuestion()
{
    QVERIFY(m_window->close());
}

void tst_HostMainWindow::closingAChangedSceneAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<bool>("written");
    QTest::newRow("save") << int(QMessageBox::Save) << true << true;
    QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
}

void tst_HostMainWindow::closingAChangedSceneAsks()
{
    QFETCH(int, answer);
    QFETCH(bool, closed);
    QFETCH(bool, written);
    edit();
    answerNextBox(QMessageBox::StandardButton(answer));
    QCOMPARE(m_window->close(), closed);
    QCOMPARE(firstLineOf(m_file).contains("height 7"), written);
}

void tst_HostMainWindow::cancellingKeepsTheChangedSceneOpen()
{
    const QString other = write(QStringLiteral("other.iv"), "#Inventor V2.1 ascii\nSphere {}\n");
    edit();
    answerNextBox(QMessageBox::Cancel);
    QVERIFY(!m_window->openFile(other));
    QCOMPARE(m_window->scene().filePath(), m_file);
    QVERIFY(row("Cone").isValid());
}

void tst_HostMainWindow::aFileThatCannotBeReadLeavesTheSceneOpen()
{
    const QString broken = write(QStringLiteral("broken.iv"), "#Inventor V2.1 ascii\nCone { hei");
    QVERIFY(!m_window->openFile(broken));
    const auto* box = child<QMessageBox>("fileMessageBox");
    QVERIFY(box->text().contains("broken.iv"));
    QVERIFY(!box->informativeText().isEmpty());
    QVERIFY(row("Cone").isValid());
}

void tst_HostMainWindow::aDroppedFileIsOpened()
{
    const QString other = write(QStringLiteral("other.iv"),
                                "#Inventor V2.1 ascii\nSeparator { DEF Ball Sphere {} }\n");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(other)});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window.get(), &drop);
    QTRY_VERIFY(row("Ball").isValid());
}

void tst_HostMainWindow::severalDroppedFilesAreRefused()
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(m_file), QUrl::fromLocalFile(m_file)});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(m_window.get(), &enter);
    QVERIFY(!enter.isAccepted());
}

void tst_HostMainWindow::anotherSceneLetsGoOfTheOldOneFirst()
{
    edit();
    m_window->scene().setModified(false);
    selectingAFieldRowSelectsTheField();
    const QString other = write(QStringLiteral("other.iv"), "#Inventor V2.1 ascii\nSphere {}\n");
    QVERIFY(m_window->openFile(other));
    QCOMPARE(m_window->services().selectedNode(), nullptr);
    QCOMPARE(m_window->services().undoStack().stack().count(), 0);
    QCOMPARE(child<QTableView>("fieldView")->model()->rowCount(), 0);
    QCOMPARE(SoNode::getByName("Cone"), nullptr);
}

void tst_HostMainWindow::theLayoutSurvivesARestart()
{
    auto* dock = child<QDockWidget>("fieldsDock");
    QCOMPARE(m_window->dockWidgetArea(dock), Qt::LeftDockWidgetArea);
    m_window->addDockWidget(Qt::RightDockWidgetArea, dock);
    child<QDockWidget>("historyDock")->hide();
    QVERIFY(m_window->close());
    restart();
    dock = child<QDockWidget>("fieldsDock");
    QCOMPARE(m_window->dockWidgetArea(dock), Qt::RightDockWidgetArea);
    QVERIFY(child<QDockWidget>("historyDock")->isHidden());
}

void tst_HostMainWindow::resettingTheLayoutBringsTheDocksBack()
{
    theLayoutSurvivesARestart();
    m_window->resetLayout();
    QCOMPARE(m_window->dockWidgetArea(child<QDockWidget>("fieldsDock")), Qt::LeftDockWidgetArea);
    QVERIFY(child<QDockWidget>("historyDock")->isVisible());
}

void tst_HostMainWindow::anEmptyDockStaysHidden()
{
    QDockWidget editorDock;
    editorDock.setObjectName("editorDock");
    TvkShell::getInstance()->addDockWidget(&editorDock, Qt::RightDockWidgetArea);
    m_window->restoreLayout();
    editorDock.show(); // as if saved while it showed an editor
    QVERIFY(m_window->close());
    m_window->restoreLayout();
    QVERIFY(editorDock.isHidden());
    TvkShell::getInstance()->removeDockWidget(&editorDock);
}

void tst_HostMainWindow::aDockInUseSurvivesTheReset()
{
    QDockWidget editorDock;
    editorDock.setObjectName("editorDock");
    editorDock.hide();
    TvkShell::getInstance()->addDockWidget(&editorDock, Qt::RightDockWidgetArea);
    m_window->restoreLayout();
    editorDock.setWidget(new QWidget);
    editorDock.show();
    m_window->resetLayout();
    QVERIFY(editorDock.isVisible());
    TvkShell::getInstance()->removeDockWidget(&editorDock);
}

void tst_HostMainWindow::undoReachesTheStackFromACommittedLine()
{
    auto* line = new QLineEdit;
    m_window->setView(line);
    line->setFocus();
    QTest::keyClicks(line, "5");
    line->setModified(false); // as after a commit
    edit();
    QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(cone().height.getValue(), 3.0f);
    QCOMPARE(line->text(), QStringLiteral("5"));
    QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(cone().height.getValue(), 7.0f);
}

void tst_HostMainWindow::undoBelongsToALineThatIsBeingTypedInto()
{
    auto* line = new QLineEdit;
    m_window->setView(line);
    line->setFocus();
    edit();
    QTest::keyClicks(line, "5");
    QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(line->text(), QString());
    QCOMPARE(cone().height.getValue(), 7.0f);
}

void tst_HostMainWindow::aFolderWithoutPluginsIsTold()
{
    const QString folder = m_folder.filePath("nothing here");
    m_window->loadPlugins(folder);
    QVERIFY(child<QMessageBox>("pluginErrorsBox")->informativeText().contains(folder));
}

void tst_HostMainWindow::openedFilesAreRemembered()
{
    const QString other = write(QStringLiteral("a&b.iv"), "#Inventor V2.1 ascii\nSphere {}\n");
    QVERIFY(m_window->openFile(other));
    auto* recent = child<HostRecentFiles>("menuRecentFiles");
    QCOMPARE(recent->files(), QStringList({other, m_file}));
    QCOMPARE(recent->actions().constFirst()->text(), QStringLiteral("a&&b.iv"));
    recent->actions().constLast()->trigger();
    QCOMPARE(m_window->scene().filePath(), m_file);
}

void tst_HostMainWindow::missingFilesAreForgotten()
{
    const QString other = write(QStringLiteral("other.iv"), "#Inventor V2.1 ascii\nSphere {}\n");
    QVERIFY(m_window->openFile(other));
    QVERIFY(QFile::remove(other));
    QCOMPARE(child<HostRecentFiles>("menuRecentFiles")->files(), QStringList(m_file));
}

void tst_HostMainWindow::onlyTenFilesAreRemembered()
{
    auto* recent = child<HostRecentFiles>("menuRecentFiles");
    for (int i = 0; i < HostRecentFiles::Limit + 2; ++i) {
        recent->add(write(QStringLiteral("%1.iv").arg(i), ConeScene));
    }
    QCOMPARE(recent->files().size(), HostRecentFiles::Limit);
    QCOMPARE(QFileInfo(recent->files().constFirst()).fileName(), QStringLiteral("11.iv"));
}

TAVRIK_TEST_MAIN(tst_HostMainWindow)
#include "tst_HostMainWindow.moc"
