#include "tests/support/TestMain.h"

#include "lib/HostUndoKeys.h"

#include <QAction>
#include <QLineEdit>
#include <QMainWindow>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

/** A window of a host: undo and redo as shortcuts, a line and a spin box. */
struct Window
{
    Window()
    {
        auto* const parent = new QWidget;
        auto* const layout = new QVBoxLayout(parent);
        layout->addWidget(line);
        layout->addWidget(box);
        window.setCentralWidget(parent);
        undo->setShortcut(QKeySequence(QStringLiteral("Ctrl+Z")));
        redo->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+Z")));
        window.addAction(undo);
        window.addAction(redo);
        window.show();
        QApplication::setActiveWindow(&window);
        line->setFocus();
    }

    QMainWindow window;
    QLineEdit* line = new QLineEdit;
    QSpinBox* box = new QSpinBox;
    QAction* undo = new QAction(&window);
    QAction* redo = new QAction(&window);
    QSignalSpy undone{undo, SIGNAL(triggered())};
    QSignalSpy redone{redo, SIGNAL(triggered())};
};

void pressUndo(QWidget* widget)
{
    QTest::keyClick(widget, Qt::Key_Z, Qt::ControlModifier);
}

} // namespace

class tst_HostUndoKeys : public QObject
{
    Q_OBJECT

private slots:
    void goToTheHostWhileNothingIsTyped()
    {
        Window host;
        const HostUndoKeys keys(host.window);
        host.line->setText(QStringLiteral("1.5"));
        pressUndo(host.line);
        QCOMPARE(host.undone.count(), 1);
        QTest::keyClick(host.line, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(host.redone.count(), 1);
        QCOMPARE(host.line->text(), QStringLiteral("1.5"));
    }

    void stayInTheLineWhileATextIsTyped()
    {
        Window host;
        const HostUndoKeys keys(host.window);
        QTest::keyClicks(host.line, QStringLiteral("2"));
        pressUndo(host.line);
        QCOMPARE(host.line->text(), QString());
        QCOMPARE(host.undone.count(), 0);
    }

    void goToTheHostAgainAfterTheTypedTextIsUndone()
    {
        Window host;
        const HostUndoKeys keys(host.window);
        QTest::keyClicks(host.line, QStringLiteral("2"));
        pressUndo(host.line);
        pressUndo(host.line);
        QCOMPARE(host.undone.count(), 1);
    }

    void goToTheHostFromASpinBoxThatShowsItsValue()
    {
        Window host;
        const HostUndoKeys keys(host.window);
        host.box->setFocus();
        host.box->setValue(3);
        pressUndo(host.box);
        QCOMPARE(host.undone.count(), 1);
        QCOMPARE(host.box->value(), 3);
    }

    void leaveTheLinesOfOtherWindowsAlone()
    {
        Window host;
        QWidget elsewhere;
        const HostUndoKeys keys(elsewhere);
        host.line->setText(QStringLiteral("1.5"));
        pressUndo(host.line);
        QCOMPARE(host.undone.count(), 0);
    }

    void leaveOtherKeysToTheLine()
    {
        Window host;
        const HostUndoKeys keys(host.window);
        host.line->setText(QStringLiteral("1.5"));
        QTest::keyClick(host.line, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(host.line->selectedText(), QStringLiteral("1.5"));
    }
};

TAVRIK_TEST_MAIN(tst_HostUndoKeys)
#include "tst_HostUndoKeys.moc"
