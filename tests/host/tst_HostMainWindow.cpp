#include "tests/host/WindowOnCone.h"
#include "tests/support/TestMain.h"

#include <Inventor/SbName.h>
#include <Inventor/SoPath.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QAction>
#include <QClipboard>
#include <QDockWidget>
#include <QLineEdit>
#include <QTableView>
#include <QTreeView>

class tst_HostMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { m_session.start(); }
    void cleanup() { m_session.finish(); }
    void theTreeShowsTheOpenedScene();
    void selectingARowSelectsItsNode();
    void selectingAFieldRowSelectsTheField();
    void selectingAnotherNodeDropsTheField();
    void theDeathOfTheSelectedNodeClearsTheFields();
    void pickingSelectsTheRow();
    void pickingNothingClearsTheSelection();
    void anUnchangedSceneIsClosedWithoutAQuestion();
    void anotherSceneLetsGoOfTheOldOneFirst();
    void theLayoutSurvivesARestart();
    void resettingTheLayoutBringsTheDocksBack();
    void anEmptyDockStaysHidden();
    void aDockInUseSurvivesTheReset();
    void undoReachesTheStackFromACommittedLine();
    void undoBelongsToALineThatIsBeingTypedInto();
    void aFolderWithoutPluginsIsTold();
    void aLibraryThatIsNoPluginIsTold();
    void aPathSelectsANodeAndAField();
    void aPathThatLeadsNowhereChangesNothing_data();
    void aPathThatLeadsNowhereChangesNothing();
    void thePathOfARowCanBeCopied();
    void thePathOfAFieldCanBeCopied();

private:
    WindowOnCone m_session;
};

void tst_HostMainWindow::initTestCase()
{
    qRegisterMetaType<const SoPath*>("const SoPath*");
}

void tst_HostMainWindow::theTreeShowsTheOpenedScene()
{
    QVERIFY(m_session.row("Cone").isValid());
    QVERIFY(m_session->windowTitle().contains("cone.iv"));
}

void tst_HostMainWindow::selectingARowSelectsItsNode()
{
    QSignalSpy marked(&*m_session, SIGNAL(nodeSelected(const SoPath*)));
    m_session.selectNode("Cone");
    QCOMPARE(m_session->services().selectedNode(), static_cast<SoNode*>(&m_session.cone()));
    QCOMPARE(marked.size(), 1);
    QVERIFY(m_session.child<QTableView>("fieldView")->model()->rowCount() > 0);
}

void tst_HostMainWindow::selectingAFieldRowSelectsTheField()
{
    m_session.selectNode("Cone");
    m_session.selectField("bottomRadius");
    QCOMPARE(m_session->services().selectedField(),
             static_cast<SoField*>(&m_session.cone().bottomRadius));
}

void tst_HostMainWindow::selectingAnotherNodeDropsTheField()
{
    selectingAFieldRowSelectsTheField();
    m_session.selectNode("Group");
    QCOMPARE(m_session->services().selectedField(), nullptr);
    QVERIFY(!m_session.child<QTableView>("fieldView")->selectionModel()->hasSelection());
}

void tst_HostMainWindow::theDeathOfTheSelectedNodeClearsTheFields()
{
    auto* lonely = new SoCone;
    lonely->ref();
    m_session->services().selectNode(lonely);
    QVERIFY(m_session.child<QTableView>("fieldView")->model()->rowCount() > 0);
    lonely->unref();
    QTRY_COMPARE(m_session.child<QTableView>("fieldView")->model()->rowCount(), 0);
}

void tst_HostMainWindow::pickingSelectsTheRow()
{
    auto* tree = m_session.child<QTreeView>("sceneView");
    tree->collapseAll();
    auto* group = static_cast<SoSeparator*>(SoNode::getByName("Group"));
    SoPath* path = new SoPath(m_session->scene().root());
    path->ref();
    path->append(group);
    path->append(&m_session.cone());
    m_session->selectPath(path);
    path->unref();
    QCOMPARE(tree->currentIndex().siblingAtColumn(0), m_session.row("Cone").siblingAtColumn(0));
    QVERIFY(tree->visualRect(tree->currentIndex()).isValid());
    QCOMPARE(m_session->services().selectedNode(), static_cast<SoNode*>(&m_session.cone()));
}

void tst_HostMainWindow::pickingNothingClearsTheSelection()
{
    m_session.selectNode("Cone");
    QSignalSpy marked(&*m_session, SIGNAL(nodeSelected(const SoPath*)));
    m_session->selectPath(nullptr);
    QCOMPARE(m_session->services().selectedNode(), nullptr);
    QVERIFY(!m_session.child<QTreeView>("sceneView")->selectionModel()->hasSelection());
    QCOMPARE(marked.size(), 1);
}

void tst_HostMainWindow::anUnchangedSceneIsClosedWithoutAQuestion()
{
    QVERIFY(m_session->close());
}

void tst_HostMainWindow::anotherSceneLetsGoOfTheOldOneFirst()
{
    m_session.edit();
    m_session->scene().setModified(false);
    selectingAFieldRowSelectsTheField();
    const QString other =
        m_session.write(QStringLiteral("other.iv"), "#Inventor V2.1 ascii\nSphere {}\n");
    QVERIFY(m_session->openFile(other));
    QCOMPARE(m_session->services().selectedNode(), nullptr);
    QCOMPARE(m_session->services().undoStack().stack().count(), 0);
    QCOMPARE(m_session.child<QTableView>("fieldView")->model()->rowCount(), 0);
    QCOMPARE(SoNode::getByName("Cone"), nullptr);
}

void tst_HostMainWindow::theLayoutSurvivesARestart()
{
    auto* dock = m_session.child<QDockWidget>("fieldsDock");
    QCOMPARE(m_session->dockWidgetArea(dock), Qt::LeftDockWidgetArea);
    m_session->addDockWidget(Qt::RightDockWidgetArea, dock);
    m_session.child<QDockWidget>("historyDock")->hide();
    QVERIFY(m_session->close());
    m_session.restart();
    dock = m_session.child<QDockWidget>("fieldsDock");
    QCOMPARE(m_session->dockWidgetArea(dock), Qt::RightDockWidgetArea);
    QVERIFY(m_session.child<QDockWidget>("historyDock")->isHidden());
}

void tst_HostMainWindow::resettingTheLayoutBringsTheDocksBack()
{
    theLayoutSurvivesARestart();
    m_session->resetLayout();
    QCOMPARE(m_session->dockWidgetArea(m_session.child<QDockWidget>("fieldsDock")),
             Qt::LeftDockWidgetArea);
    QVERIFY(m_session.child<QDockWidget>("historyDock")->isVisible());
}

void tst_HostMainWindow::anEmptyDockStaysHidden()
{
    QDockWidget editorDock;
    editorDock.setObjectName("editorDock");
    TvkShell::getInstance()->addDockWidget(&editorDock, Qt::RightDockWidgetArea);
    m_session->restoreLayout();
    editorDock.show(); // as if saved while it showed an editor
    QVERIFY(m_session->close());
    m_session->restoreLayout();
    QVERIFY(editorDock.isHidden());
    TvkShell::getInstance()->removeDockWidget(&editorDock);
}

void tst_HostMainWindow::aDockInUseSurvivesTheReset()
{
    QDockWidget editorDock;
    editorDock.setObjectName("editorDock");
    editorDock.hide();
    TvkShell::getInstance()->addDockWidget(&editorDock, Qt::RightDockWidgetArea);
    m_session->restoreLayout();
    editorDock.setWidget(new QWidget);
    editorDock.show();
    m_session->resetLayout();
    QVERIFY(editorDock.isVisible());
    TvkShell::getInstance()->removeDockWidget(&editorDock);
}

void tst_HostMainWindow::undoReachesTheStackFromACommittedLine()
{
    auto* line = new QLineEdit;
    m_session->setView(line);
    line->setFocus();
    QTest::keyClicks(line, "5");
    line->setModified(false); // as after a commit
    m_session.edit();
    QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_session.cone().height.getValue(), 3.0F);
    QCOMPARE(line->text(), QStringLiteral("5"));
    QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_session.cone().height.getValue(), 7.0F);
}

void tst_HostMainWindow::undoBelongsToALineThatIsBeingTypedInto()
{
    auto* line = new QLineEdit;
    m_session->setView(line);
    line->setFocus();
    m_session.edit();
    QTest::keyClicks(line, "5");
    QTest::keyClick(line, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(line->text(), QString());
    QCOMPARE(m_session.cone().height.getValue(), 7.0F);
}

void tst_HostMainWindow::aFolderWithoutPluginsIsTold()
{
    const QString folder = m_session.path("nothing here");
    m_session->loadPlugins(folder);
    QVERIFY(m_session.child<QMessageBox>("pluginErrorsBox")->informativeText().contains(folder));
}

void tst_HostMainWindow::aLibraryThatIsNoPluginIsTold()
{
    m_session->loadPlugins(QStringList{m_session.file()});
    const auto* box = m_session.child<QMessageBox>("pluginErrorsBox");
    QVERIFY(box->informativeText().contains("cone.iv cannot be opened"));
}

void tst_HostMainWindow::aPathSelectsANodeAndAField()
{
    QString error;
    QVERIFY2(m_session->select("/Group/Cone.height", &error), qPrintable(error));
    QCOMPARE(m_session->services().selectedNode(), static_cast<SoNode*>(&m_session.cone()));
    QCOMPARE(m_session->services().selectedField(),
             static_cast<SoField*>(&m_session.cone().height));
    QCOMPARE(m_session.child<QTreeView>("sceneView")->currentIndex(),
             m_session.row("Cone").siblingAtColumn(0));
    QVERIFY(m_session->select("/Group", &error));
    QCOMPARE(m_session->services().selectedField(), nullptr);
}

void tst_HostMainWindow::aPathThatLeadsNowhereChangesNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("node") << "/Group/Sphere[0]";
    QTest::newRow("field") << "/Group.radius";
}

void tst_HostMainWindow::aPathThatLeadsNowhereChangesNothing()
{
    QFETCH(QString, path);
    selectingAFieldRowSelectsTheField();
    QString error;
    QVERIFY(!m_session->select(path, &error));
    QVERIFY(!error.isEmpty());
    QCOMPARE(m_session->services().selectedField(),
             static_cast<SoField*>(&m_session.cone().bottomRadius));
}

void tst_HostMainWindow::thePathOfARowCanBeCopied()
{
    m_session.selectNode("Cone");
    auto* tree = m_session.child<QTreeView>("sceneView");
    tree->setFocus();
    QTest::keyClick(tree, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QApplication::clipboard()->text(), QString("/Group/Cone"));
    m_session->selectPath(nullptr);
    m_session.child<QAction>("actionCopyNodePath")->trigger();
    QCOMPARE(QApplication::clipboard()->text(), QString("/Group/Cone"));
}

void tst_HostMainWindow::thePathOfAFieldCanBeCopied()
{
    m_session.selectNode("Cone");
    m_session.selectField("height");
    auto* fields = m_session.child<QTableView>("fieldView");
    fields->setFocus();
    QTest::keyClick(fields, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(QApplication::clipboard()->text(), QString("/Group/Cone.height"));
}

TAVRIK_TEST_MAIN(tst_HostMainWindow)
#include "tst_HostMainWindow.moc"
