#include "Console/ConsoleFindBar.h"
#include "tests/src/Console/ConsoleRig.h"

#include "tests/support/TestMain.h"

#include <QLabel>
#include <QLineEdit>

namespace {

/** A console with four lines, its view focused. */
struct FindRig : ConsoleRig
{
    FindRig()
    {
        for (const char* const text : {"cube", "cone", "cube again", "sphere"})
            view().addParagraph(QLatin1String(text), Qt::darkGreen);
        view().window()->activateWindow();
        view().setFocus();
        view().moveCursor(QTextCursor::Start);
        QTest::qWait(1);
    }

    QWidget& bar() { return *console.m_consoleFindBar; }
    QLineEdit& line() { return *bar().findChild<QLineEdit*>("findLine"); }
    QString answer() { return bar().findChild<QLabel*>("findAnswer")->text(); }
    /** Where the found text stands, as `line:column`; empty when nothing is selected. */
    QString found()
    {
        QTextCursor cursor = view().textCursor();
        if (!cursor.hasSelection())
            return {};
        cursor.setPosition(cursor.selectionStart());
        return QStringLiteral("%1:%2").arg(cursor.blockNumber()).arg(cursor.columnNumber());
    }

    void open() { QTest::keyClick(&view(), Qt::Key_F, Qt::ControlModifier); }
};

} // namespace

/** Looking for a text in the console. */
class tst_ConsoleFindBar : public QObject
{
    Q_OBJECT

private slots:
    void ctrlFOpensItAndEscapeClosesIt()
    {
        FindRig rig;
        QVERIFY(!rig.bar().isVisible());
        rig.open();
        QVERIFY(rig.bar().isVisible());
        QVERIFY(rig.line().hasFocus());
        QTest::keyClick(&rig.line(), Qt::Key_Escape);
        QVERIFY(!rig.bar().isVisible());
        QVERIFY(rig.view().hasFocus());
    }

    void theTextIsFoundWhileItIsTyped()
    {
        FindRig rig;
        rig.open();
        QTest::keyClicks(&rig.line(), QStringLiteral("co"));
        QCOMPARE(rig.found(), QStringLiteral("1:0"));
        QTest::keyClicks(&rig.line(), QStringLiteral("NE"));
        QCOMPARE(rig.found(), QStringLiteral("1:0"));
        QCOMPARE(rig.view().textCursor().selectedText(), QStringLiteral("cone"));
    }

    void returnGoesToTheNextPlaceAndRoundTheEnd()
    {
        FindRig rig;
        rig.open();
        QTest::keyClicks(&rig.line(), QStringLiteral("cube"));
        QCOMPARE(rig.found(), QStringLiteral("0:0"));
        QTest::keyClick(&rig.line(), Qt::Key_Return);
        QCOMPARE(rig.found(), QStringLiteral("2:0"));
        QTest::keyClick(&rig.line(), Qt::Key_Return);
        QCOMPARE(rig.found(), QStringLiteral("0:0"));
    }

    void shiftReturnGoesBackAndRoundTheBeginning()
    {
        FindRig rig;
        rig.open();
        QTest::keyClicks(&rig.line(), QStringLiteral("cube"));
        QTest::keyClick(&rig.line(), Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(rig.found(), QStringLiteral("2:0"));
    }

    void theButtonsDoTheSame()
    {
        FindRig rig;
        rig.open();
        QTest::keyClicks(&rig.line(), QStringLiteral("cube"));
        const auto click = [&](const char* name) {
            QTest::mouseClick(rig.bar().findChild<QWidget*>(name), Qt::LeftButton);
        };
        click("findNextButton");
        QCOMPARE(rig.found(), QStringLiteral("2:0"));
        click("findPreviousButton");
        QCOMPARE(rig.found(), QStringLiteral("0:0"));
        click("findCloseButton");
        QVERIFY(!rig.bar().isVisible());
    }

    void whatIsNotThereIsSaidAndNothingMoves()
    {
        FindRig rig;
        rig.open();
        QTest::keyClicks(&rig.line(), QStringLiteral("cubE"));
        QCOMPARE(rig.answer(), QString());
        QTest::keyClicks(&rig.line(), QStringLiteral("!"));
        QCOMPARE(rig.answer(), QStringLiteral("Not found"));
        QTest::keyClick(&rig.line(), Qt::Key_Backspace);
        QCOMPARE(rig.answer(), QString());
        QCOMPARE(rig.found(), QStringLiteral("0:0"));
    }

    void whatIsSelectedIsWhatIsLookedFor()
    {
        FindRig rig;
        rig.view().find(QStringLiteral("sphere"));
        rig.open();
        QCOMPARE(rig.line().text(), QStringLiteral("sphere"));
        QVERIFY(rig.line().hasSelectedText());
    }

    void newMessagesDoNotMoveThePlace()
    {
        FindRig rig;
        rig.open();
        QTest::keyClicks(&rig.line(), QStringLiteral("again"));
        rig.view().addParagraph(QStringLiteral("later"), Qt::darkRed);
        QCoreApplication::processEvents();
        QCOMPARE(rig.found(), QStringLiteral("2:5"));
    }
};

TAVRIK_TEST_MAIN(tst_ConsoleFindBar)
#include "tst_ConsoleFindBar.moc"
