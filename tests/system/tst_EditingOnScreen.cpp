#include "tests/support/TestMain.h"
#include "tests/system/SessionOnScreen.h"

#include "app/AppRobot.h"
#include "app/AppSceneView.h"

#include <Inventor/nodes/SoDrawStyle.h>
#include <Inventor/nodes/SoTransform.h>

#include <QDockWidget>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>

/** What a user does in the program's window, with a real mouse, keyboard and screen. */
class tst_EditingOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void selectingAFieldShowsItsEditor();
    void typingAVectorChangesThePicture();
    void returnAndLeavingMakeOneEntry();
    void leavingAnUneditedLineMakesNoEntry();
    void leavingAnEditedLineCommits();
    void keepsAnEditedVectorWhenItIsUndone();
    void undoingTheIgnoreButtonRestoresThePicture();
    void theDefaultButtonResetsTheField();
    void theSavedFileHoldsTheEdit();
    void savingTakesAHalfMadeEditAlong();
    void aDroppedFileReplacesThePicture();
    void theSceneIsReplacedWhileAFieldIsEdited();
    void anEmptyEditorIsNotShownAfterARestart();
    void resettingTheLayoutKeepsTheEditorInUse();
    void closingWhileALineIsEditedAsksForTheScene();

private:
    static SoTransform& moved() { return *static_cast<SoTransform*>(SoNode::getByName("Move")); }
    static QString translation();
    QLineEdit& firstLine() const;
    QDockWidget& editorDock() const;

    SessionOnScreen m_session;
};

void tst_EditingOnScreen::init()
{
    m_session.start();
}

void tst_EditingOnScreen::cleanup()
{
    m_session.finish();
}

QString tst_EditingOnScreen::translation()
{
    SbString text;
    moved().translation.get(text);
    return QString::fromLatin1(text.getString());
}

QLineEdit& tst_EditingOnScreen::firstLine() const
{
    const QList<QLineEdit*> lines = m_session.vectorLines();
    if (lines.size() != 3)
        qFatal("the vector editor is not shown");
    return *lines.first();
}

QDockWidget& tst_EditingOnScreen::editorDock() const
{
    for (QDockWidget* dock : m_session.window().findChildren<QDockWidget*>())
        if (dock->windowTitle() == "Field Editor")
            return *dock;
    qFatal("there is no field editor dock");
}

void tst_EditingOnScreen::selectingAFieldShowsItsEditor()
{
    QVERIFY(editorDock().isHidden());
    m_session.select("Move", "translation");
    QVERIFY(editorDock().isVisible());
    QCOMPARE(firstLine().text(), QStringLiteral("0"));
    m_session.selectNode("Ball");
    QVERIFY(editorDock().isHidden());
}

void tst_EditingOnScreen::typingAVectorChangesThePicture()
{
    m_session.select("Move", "translation");
    const QImage before = m_session.picture();
    m_session.type(firstLine(), "1.5");
    QTest::keyClick(&firstLine(), Qt::Key_Return);
    QCOMPARE(translation(), QStringLiteral("1.5 0 0"));
    QVERIFY(AppRobot::differ(m_session.picture(), before));
    QVERIFY(m_session.window().isWindowModified());
}

void tst_EditingOnScreen::returnAndLeavingMakeOneEntry()
{
    m_session.select("Move", "translation");
    m_session.type(firstLine(), "1.5");
    QTest::keyClick(&firstLine(), Qt::Key_Return);
    QTest::mouseClick(m_session.vectorLines().last(), Qt::LeftButton);
    QCOMPARE(m_session.history().count(), 1);
    m_session.selectNode("Ball");
    QCOMPARE(m_session.history().count(), 1);
}

void tst_EditingOnScreen::leavingAnUneditedLineMakesNoEntry()
{
    m_session.select("Move", "translation");
    QTest::mouseClick(&firstLine(), Qt::LeftButton);
    QTest::mouseClick(m_session.vectorLines().last(), Qt::LeftButton);
    m_session.selectNode("Ball");
    QCOMPARE(m_session.history().count(), 0);
    QVERIFY(!m_session.window().isWindowModified());
}

void tst_EditingOnScreen::leavingAnEditedLineCommits()
{
    m_session.select("Move", "translation");
    m_session.type(firstLine(), "2.5");
    m_session.selectNode("Ball");
    QCOMPARE(translation(), QStringLiteral("2.5 0 0"));
    QCOMPARE(m_session.history().count(), 1);
}

void tst_EditingOnScreen::keepsAnEditedVectorWhenItIsUndone()
{
    typingAVectorChangesThePicture();
    const QImage edited = m_session.picture();
    QTest::keyClick(&firstLine(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(m_session.history().index(), 0);
    QCOMPARE(translation(), QStringLiteral("1.5 0 0"));
    QVERIFY(!AppRobot::differ(m_session.picture(), edited));
    QTest::keyClick(&firstLine(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(m_session.history().index(), 1);
    QCOMPARE(translation(), QStringLiteral("1.5 0 0"));
}

void tst_EditingOnScreen::undoingTheIgnoreButtonRestoresThePicture()
{
    auto* style = static_cast<SoDrawStyle*>(SoNode::getByName("Style"));
    m_session.select("Style", "style");
    const QImage before = m_session.picture();
    QTest::mouseClick(m_session.visible<QPushButton>("m_ignoreButton"), Qt::LeftButton);
    QVERIFY(style->style.isIgnored());
    QVERIFY(AppRobot::differ(m_session.picture(), before));
    QTest::keyClick(&m_session.window(), Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!style->style.isIgnored());
    QVERIFY(!AppRobot::differ(m_session.picture(), before));
    QTRY_VERIFY(!m_session.visible<QPushButton>("m_ignoreButton")->isChecked());
    QTest::keyClick(&m_session.window(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(style->style.isIgnored());
}

void tst_EditingOnScreen::theDefaultButtonResetsTheField()
{
    typingAVectorChangesThePicture();
    QTest::mouseClick(m_session.visible<QPushButton>("m_defaultButton"), Qt::LeftButton);
    QCOMPARE(translation(), QStringLiteral("0 0 0"));
    QTRY_COMPARE(firstLine().text(), QStringLiteral("0"));
    QCOMPARE(m_session.history().count(), 2);
}

void tst_EditingOnScreen::theSavedFileHoldsTheEdit()
{
    typingAVectorChangesThePicture();
    QTest::keyClick(&firstLine(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!m_session.window().isWindowModified());
    m_session.restart();
    QCOMPARE(translation(), QStringLiteral("1.5 0 0"));
}

void tst_EditingOnScreen::savingTakesAHalfMadeEditAlong()
{
    m_session.select("Move", "translation");
    m_session.type(firstLine(), "3.5");
    QTest::keyClick(&firstLine(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!m_session.window().isWindowModified());
    m_session.restart();
    QCOMPARE(translation(), QStringLiteral("3.5 0 0"));
}

void tst_EditingOnScreen::aDroppedFileReplacesThePicture()
{
    const QImage before = m_session.picture();
    const QString other =
        m_session.write("other.iv", "#Inventor V2.1 ascii\nDEF Only Cylinder {}\n");
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(other)});
    QWidget* canvas = m_session.window().view().canvas();
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(canvas, &enter);
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(canvas, &drop);
    QTRY_COMPARE(m_session.window().scene().filePath(), other);
    QVERIFY(AppRobot::differ(m_session.picture(), before));
}

void tst_EditingOnScreen::theSceneIsReplacedWhileAFieldIsEdited()
{
    m_session.select("Move", "translation");
    QTest::mouseClick(&firstLine(), Qt::LeftButton);
    const QString other =
        m_session.write("other.iv", "#Inventor V2.1 ascii\nDEF Only Cylinder {}\n");
    QVERIFY(m_session.window().openFile(other));
    QVERIFY(editorDock().isHidden());
    QCOMPARE(m_session.history().count(), 0);
    QCOMPARE(SoNode::getByName("Move"), nullptr);
    m_session.select("Only", "radius");
    QVERIFY(editorDock().isVisible());
}

void tst_EditingOnScreen::anEmptyEditorIsNotShownAfterARestart()
{
    m_session.select("Move", "translation");
    QVERIFY(m_session.window().close());
    m_session.restart();
    QVERIFY(editorDock().isHidden());
    m_session.select("Move", "translation");
    QVERIFY(editorDock().isVisible());
}

void tst_EditingOnScreen::resettingTheLayoutKeepsTheEditorInUse()
{
    m_session.select("Move", "translation");
    editorDock().setFloating(true);
    m_session.window().resetLayout();
    QVERIFY(editorDock().isVisible());
    QVERIFY(!editorDock().isFloating());
    QVERIFY(firstLine().isVisible());
}

void tst_EditingOnScreen::closingWhileALineIsEditedAsksForTheScene()
{
    m_session.select("Move", "translation");
    m_session.type(firstLine(), "4.5");
    QTimer::singleShot(0, this, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        QTest::mouseClick(box->button(QMessageBox::Cancel), Qt::LeftButton);
    });
    QVERIFY(!m_session.window().close());
    QCOMPARE(translation(), QStringLiteral("4.5 0 0"));
}

TAVRIK_TEST_MAIN(tst_EditingOnScreen)
#include "tst_EditingOnScreen.moc"
