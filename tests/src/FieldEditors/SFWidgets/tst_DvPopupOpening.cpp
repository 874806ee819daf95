#include "tests/src/FieldEditors/SFWidgets/PopupParts.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFBox3sWidget.h"
#include "FieldEditors/SFWidgets/DvSFMatrixWidget.h"

#include <QScreen>
#include <QWindow>

namespace {

/** A click as the window system reports it, so that an open pop-up gets it first. */
void clickInWindow(EditorRig& rig, const QWidget& target)
{
    const QPoint at = target.mapTo(&rig.window, target.rect().center());
    QTest::mousePress(rig.window.windowHandle(), Qt::LeftButton, {}, at);
    QCoreApplication::processEvents();
    QTest::mouseRelease(rig.window.windowHandle(), Qt::LeftButton, {}, at);
    QCoreApplication::processEvents();
}

} // namespace

/** How a pop-up opens, is used and closes, and what may happen meanwhile. */
class tst_DvPopupOpening : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void opensWholeOnTheScreenAndBesideTheButton_data()
    {
        QTest::addColumn<bool>("right");
        QTest::addColumn<bool>("bottom");
        QTest::newRow("top left") << false << false;
        QTest::newRow("top right") << true << false;
        QTest::newRow("bottom left") << false << true;
        QTest::newRow("bottom right") << true << true;
    }
    void opensWholeOnTheScreenAndBesideTheButton()
    {
        QFETCH(bool, right);
        QFETCH(bool, bottom);
        DvSFMatrixWidget editor;
        EditorRig rig(editor, "sfMatrix");
        const QRect screen = rig.window.screen()->availableGeometry();
        rig.window.resize(200, 100);
        const int x = right ? screen.right() + 1 - rig.window.width() : screen.left();
        const int y = bottom ? screen.bottom() + 1 - rig.window.height() : screen.top();
        rig.window.move(x, y);
        QCoreApplication::processEvents();
        open(rig);
        const QRect shown = popup(rig)->geometry();
        QVERIFY2(screen.contains(shown), qPrintable(QStringLiteral("%1 %2 %3 %4")
                                                        .arg(shown.x())
                                                        .arg(shown.y())
                                                        .arg(shown.width())
                                                        .arg(shown.height())));
        const QRect anchor(button(rig)->mapToGlobal(QPoint(0, 0)), button(rig)->size());
        QVERIFY(!shown.intersects(anchor));
    }

    void theButtonOpensAndCloses()
    {
        DvSFMatrixWidget editor;
        EditorRig rig(editor, "sfMatrix");
        clickInWindow(rig, *button(rig));
        QVERIFY(popup(rig)->isVisible());
        clickInWindow(rig, *button(rig));
        QVERIFY(!popup(rig)->isVisible());
        clickInWindow(rig, *button(rig));
        QVERIFY(popup(rig)->isVisible());
    }

    void aClickOutsideCloses()
    {
        DvSFMatrixWidget editor;
        EditorRig rig(editor, "sfMatrix");
        open(rig);
        clickInWindow(rig, *rig.other);
        QVERIFY(!popup(rig)->isVisible());
        QCOMPARE(rig.host.services.count(), 0);
    }

    void escapeCloses()
    {
        DvSFMatrixWidget editor;
        EditorRig rig(editor, "sfMatrix");
        open(rig);
        cell(rig, 0)->setFocus();
        QTest::keyClick(cell(rig, 0), Qt::Key_Escape);
        QVERIFY(!popup(rig)->isVisible());
        QCOMPARE(rig.host.services.count(), 0);
    }

    void escapeTakesATypedTextBackFirstAndThenCloses()
    {
        DvSFMatrixWidget editor;
        EditorRig rig(editor, "sfMatrix");
        open(rig);
        EditorRig::type(cell(rig, 0), QStringLiteral("5"));
        QTest::keyClick(cell(rig, 0), Qt::Key_Escape);
        QVERIFY(popup(rig)->isVisible());
        QCOMPARE(cell(rig, 0)->text(), QStringLiteral("1"));
        QTest::keyClick(cell(rig, 0), Qt::Key_Escape);
        QVERIFY(!popup(rig)->isVisible());
        QCOMPARE(rig.host.services.count(), 0);
    }

    void closingCommitsWhatWasTypedOnce_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("a click outside") << 0;
        QTest::newRow("the button") << 1;
        QTest::newRow("another field") << 2;
        QTest::newRow("deactivation") << 3;
    }
    void closingCommitsWhatWasTypedOnce()
    {
        QFETCH(int, way);
        SoSFMatrix next;
        DvSFMatrixWidget editor;
        EditorRig rig(editor, "sfMatrix");
        open(rig);
        EditorRig::type(cell(rig, 0), QStringLiteral("5"));
        if (way == 0)
            clickInWindow(rig, *rig.other);
        else if (way == 1)
            clickInWindow(rig, *button(rig));
        else if (way == 2)
            editor.setField(&next);
        else
            editor.deactivate();
        EditorRig::runSensors();
        QVERIFY(!popup(rig)->isVisible());
        QCOMPARE(rig.node->sfMatrix.getValue()[0][0], 5.0F);
        QCOMPARE(rig.host.services.count(), 1);
        QCOMPARE(rig.host.services.at(0).getField(), &rig.node->sfMatrix);
    }

    void closingTakesBackAHalfTypedNumber()
    {
        DvSFMatrixWidget editor;
        EditorRig rig(editor, "sfMatrix");
        open(rig);
        EditorRig::type(cell(rig, 0), QStringLiteral("-"));
        clickInWindow(rig, *rig.other);
        QCOMPARE(rig.node->sfMatrix.getValue()[0][0], 1.0F);
        QCOMPARE(cell(rig, 0)->text(), QStringLiteral("1"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void anOpenPopupFollowsOutsideChanges()
    {
        DvSFBox3sWidget editor;
        EditorRig rig(editor, "sfBox3s");
        open(rig);
        EditorRig::type(cell(rig, 0), QStringLiteral("7"));
        rig.node->sfBox3s.setValue(0, 0, 0, 9, 9, 9);
        EditorRig::runSensors();
        QCOMPARE(cell(rig, 0)->text(), QStringLiteral("7")); // being typed
        QCOMPARE(cell(rig, 3)->text(), QStringLiteral("9"));
        QTest::keyClick(cell(rig, 0), Qt::Key_Return);
        QCOMPARE(rig.text(), QStringLiteral("7 0 0 9 9 9"));
    }

    void theContainerMayDieUnderAnOpenPopup()
    {
        DvSFMatrixWidget editor;
        EditorRig rig(editor, "sfMatrix");
        open(rig);
        EditorRig::type(cell(rig, 0), QStringLiteral("5"));
        rig.killNode();
        QVERIFY(!popup(rig)->isVisible());
        QCOMPARE(rig.host.services.count(), 0);
        open(rig);
        QVERIFY(!popup(rig)->isVisible());
    }

    void theEditorMayDieUnderAnOpenPopup()
    {
        auto editor = std::make_unique<DvSFMatrixWidget>();
        editor->createWidgets();
        SoEveryField* const node = new SoEveryField;
        node->ref();
        SoTypedObject object(&node->sfMatrix);
        editor->setEditedObject(&object);
        editor->activate();
        editor->managePopFramePos();
        QPointer<QFrame> frame = editor->getWidget()->findChild<QFrame*>("m_popupFrame");
        QVERIFY(frame && frame->isVisible());
        editor.reset();
        QVERIFY(!frame);
        node->unref();
    }

    void theTabKeyGoesThroughThePopupInReadingOrder()
    {
        DvSFMatrixWidget editor;
        EditorRig rig(editor, "sfMatrix");
        open(rig);
        QCOMPARE(QApplication::focusWidget(), cell(rig, 0));
        for (int i = 0; i < 15; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), cell(rig, i + 1));
            QVERIFY(!cell(rig, i)->accessibleName().isEmpty());
        }
        QCOMPARE(rig.host.services.count(), 0);
    }
};

TAVRIK_TEST_MAIN(tst_DvPopupOpening)
#include "tst_DvPopupOpening.moc"
