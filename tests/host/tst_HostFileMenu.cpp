#include "tests/host/WindowOnCone.h"
#include "tests/support/TestMain.h"

#include <Inventor/nodes/SoCone.h>

#include <QAction>
#include <QComboBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QStatusBar>

class tst_HostFileMenu : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_session.start(); }
    void cleanup() { m_session.finish(); }
    void anEditMarksTheTitle();
    void aWriteWithoutACommandMarksTheTitle();
    void keepsTheMarkWhenAnEditIsUndone();
    void savingTakesTheMarkAway();
    void closingAChangedSceneAsks_data();
    void closingAChangedSceneAsks();
    void cancellingKeepsTheChangedSceneOpen();
    void aFileThatCannotBeReadLeavesTheSceneOpen();
    void complaintsOfTheReaderAreTold();
    void aSceneIsSavedUnderAnotherName();
    void aDroppedFileIsOpened();
    void severalDroppedFilesAreRefused();
    void theChosenFormatGivesTheSuffix();
    void openedFilesAreRemembered();
    void missingFilesAreForgotten();
    void onlyTenFilesAreRemembered();
    void workShowsThatItIsGoingOn_data();
    void workShowsThatItIsGoingOn();
    void failedWorkLeavesNoSignOfGoingOn();

private:
    WindowOnCone m_session;
};

void tst_HostFileMenu::anEditMarksTheTitle()
{
    QVERIFY(!m_session->isWindowModified());
    m_session.edit();
    QVERIFY(m_session->isWindowModified());
}

void tst_HostFileMenu::aWriteWithoutACommandMarksTheTitle()
{
    m_session.selectNode("Cone");
    m_session.selectField("bottomRadius");
    QVERIFY(!m_session->isWindowModified());
    m_session.cone().bottomRadius = 4;
    QVERIFY(m_session->isWindowModified());
}

void tst_HostFileMenu::keepsTheMarkWhenAnEditIsUndone()
{
    m_session.edit();
    QTest::keyClick(&*m_session, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_session.cone().height.getValue(), 3.0F);
    QVERIFY(m_session->isWindowModified());
}

void tst_HostFileMenu::savingTakesTheMarkAway()
{
    m_session.edit();
    m_session.child<QAction>("actionSave")->trigger();
    QVERIFY(!m_session->isWindowModified());
    QVERIFY(WindowOnCone::contents(m_session.file()).contains("height 7"));
}

void tst_HostFileMenu::closingAChangedSceneAsks_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<bool>("written");
    QTest::newRow("save") << int(QMessageBox::Save) << true << true;
    QTest::newRow("discard") << int(QMessageBox::Discard) << true << false;
    QTest::newRow("cancel") << int(QMessageBox::Cancel) << false << false;
}

void tst_HostFileMenu::closingAChangedSceneAsks()
{
    QFETCH(int, answer);
    QFETCH(bool, closed);
    QFETCH(bool, written);
    m_session.edit();
    m_session.answerNextBox(QMessageBox::StandardButton(answer));
    QCOMPARE(m_session->close(), closed);
    QCOMPARE(WindowOnCone::contents(m_session.file()).contains("height 7"), written);
}

void tst_HostFileMenu::cancellingKeepsTheChangedSceneOpen()
{
    const QString other =
        m_session.write(QStringLiteral("other.iv"), "#Inventor V2.1 ascii\nSphere {}\n");
    m_session.edit();
    m_session.answerNextBox(QMessageBox::Cancel);
    QVERIFY(!m_session->openFile(other));
    QCOMPARE(m_session->scene().filePath(), m_session.file());
    QVERIFY(m_session.row("Cone").isValid());
}

void tst_HostFileMenu::aFileThatCannotBeReadLeavesTheSceneOpen()
{
    const QString broken =
        m_session.write(QStringLiteral("broken.iv"), "#Inventor V2.1 ascii\nCone { hei");
    QVERIFY(!m_session->openFile(broken));
    const auto* box = m_session.child<QMessageBox>("fileMessageBox");
    QVERIFY(box->text().contains("broken.iv"));
    QVERIFY(!box->informativeText().isEmpty());
    QVERIFY(m_session.row("Cone").isValid());
}

void tst_HostFileMenu::complaintsOfTheReaderAreTold()
{
    const QByteArray text =
        "#Inventor V2.1 ascii\nSeparator { DEF Ball Sphere {} File { name \"gone.iv\" } }\n";
    const QString incomplete = m_session.write(QStringLiteral("incomplete.iv"), text);
    QVERIFY(m_session->openFile(incomplete));
    QVERIFY(m_session.row("Ball").isValid());
    const auto* box = m_session.child<QMessageBox>("fileMessageBox");
    QVERIFY2(box->informativeText().contains("gone.iv"), qPrintable(box->informativeText()));
}

void tst_HostFileMenu::aSceneIsSavedUnderAnotherName()
{
    m_session.edit();
    QTimer::singleShot(0, this, [this] {
        auto* dialog = m_session.child<QFileDialog>("saveDialog");
        dialog->selectFile(m_session.path("renamed"));
        QMetaObject::invokeMethod(dialog, "accept");
    });
    m_session.child<QAction>("actionSaveAs")->trigger();
    const QString renamed = m_session.path("renamed.iv");
    QCOMPARE(m_session->scene().filePath(), renamed);
    QVERIFY(WindowOnCone::contents(renamed).contains("height 7"));
    QVERIFY(m_session->windowTitle().contains("renamed.iv"));
}

void tst_HostFileMenu::aDroppedFileIsOpened()
{
    const QString other = m_session.write(
        QStringLiteral("other.iv"), "#Inventor V2.1 ascii\nSeparator { DEF Ball Sphere {} }\n");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(other)});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&*m_session, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&*m_session, &drop);
    QTRY_VERIFY(m_session.row("Ball").isValid());
}

void tst_HostFileMenu::severalDroppedFilesAreRefused()
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(m_session.file()), QUrl::fromLocalFile(m_session.file())});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&*m_session, &enter);
    QVERIFY(!enter.isAccepted());
}

void tst_HostFileMenu::openedFilesAreRemembered()
{
    const QString other =
        m_session.write(QStringLiteral("a&b.iv"), "#Inventor V2.1 ascii\nSphere {}\n");
    QVERIFY(m_session->openFile(other));
    auto* recent = m_session.child<HostRecentFiles>("menuRecentFiles");
    QCOMPARE(recent->files(), QStringList({other, m_session.file()}));
    QCOMPARE(recent->actions().constFirst()->text(), QStringLiteral("a&&b.iv"));
    recent->actions().constLast()->trigger();
    QCOMPARE(m_session->scene().filePath(), m_session.file());
}

void tst_HostFileMenu::missingFilesAreForgotten()
{
    const QString other =
        m_session.write(QStringLiteral("other.iv"), "#Inventor V2.1 ascii\nSphere {}\n");
    QVERIFY(m_session->openFile(other));
    QVERIFY(QFile::remove(other));
    QCOMPARE(m_session.child<HostRecentFiles>("menuRecentFiles")->files(),
             QStringList(m_session.file()));
}

void tst_HostFileMenu::onlyTenFilesAreRemembered()
{
    auto* recent = m_session.child<HostRecentFiles>("menuRecentFiles");
    for (int i = 0; i < HostRecentFiles::Limit + 2; ++i)
        recent->add(
            m_session.write(QStringLiteral("%1.iv").arg(i), "#Inventor V2.1 ascii\nCone {}\n"));
    QCOMPARE(recent->files().size(), HostRecentFiles::Limit);
    QCOMPARE(QFileInfo(recent->files().constFirst()).fileName(), QStringLiteral("11.iv"));
}

void tst_HostFileMenu::theChosenFormatGivesTheSuffix()
{
    QTimer::singleShot(0, this, [this] {
        auto* dialog = m_session.child<QFileDialog>("saveDialog");
        auto* formats = dialog->findChild<QComboBox*>("fileTypeCombo");
        formats->setFocus();
        QTest::keyClicks(formats, "V");
        dialog->selectFile(m_session.path("bare"));
        QMetaObject::invokeMethod(dialog, "accept");
    });
    m_session.child<QAction>("actionSaveAs")->trigger();
    QVERIFY(WindowOnCone::contents(m_session.path("bare.wrl")).startsWith("#VRML V2.0"));
}

void tst_HostFileMenu::workShowsThatItIsGoingOn_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("says");
    QTest::newRow("opening") << "open"
                             << "Opening ";
    QTest::newRow("saving") << "save"
                            << "Saving ";
}

void tst_HostFileMenu::workShowsThatItIsGoingOn()
{
    QFETCH(QString, action);
    QFETCH(QString, says);
    m_session.edit();
    QString said;
    bool isBusy = false;
    // The mark goes as the last thing of both.
    connect(&m_session->scene(), &HostScene::modifiedChanged, this, [&] {
        said = m_session->statusBar()->currentMessage();
        isBusy = QApplication::overrideCursor() != nullptr;
    });
    if (action == "open")
        WindowOnCone::answerNextBox(QMessageBox::Discard);
    if (action == "open")
        QVERIFY(m_session->openFile(m_session.file()));
    else
        m_session.child<QAction>("actionSave")->trigger();
    QVERIFY2(said.startsWith(says), qPrintable(said));
    QVERIFY(isBusy);
    QVERIFY(!QApplication::overrideCursor());
    QVERIFY(!m_session->statusBar()->currentMessage().endsWith("..."));
}

void tst_HostFileMenu::failedWorkLeavesNoSignOfGoingOn()
{
    QVERIFY(!m_session->openFile(m_session.path("none.iv")));
    QCOMPARE(m_session->statusBar()->currentMessage(), QString());
    QVERIFY(!QApplication::overrideCursor());
}

TAVRIK_TEST_MAIN(tst_HostFileMenu)
#include "tst_HostFileMenu.moc"
