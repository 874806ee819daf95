#include "scenegraph/SoErrorStack.h"
#include "scenegraph/SoGLError.h"
#include "tests/src/Console/ConsoleRig.h"

#include "tests/support/CaughtStderr.h"
#include "tests/support/TestMain.h"

#include <Inventor/SoInput.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoMemoryError.h>

namespace {

const QColor s_red(Qt::darkRed);
const QColor s_green(Qt::darkGreen);
const QColor s_yellow(Qt::darkYellow);

void readBrokenScene()
{
    SoInput input;
    const char scene[] = "#Inventor V2.1 ascii\nCube { width }";
    input.setBuffer(const_cast<char*>(scene), sizeof(scene));
    SoNode* node = nullptr;
    SoDB::read(&input, node);
}

/** Sees the events on their way to the console. */
class EventLog : public QObject
{
public:
    QStringList events;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Type(1000)) {
            const auto& message = *static_cast<TvkConsole::ConsoleEvent*>(event);
            events << QStringLiteral("%1 %2").arg(message.kind).arg(message.text);
        }
        return false;
    }
};

} // namespace

/** How what is written and reported reaches the console's view. */
class tst_ConsoleMessages : public QObject
{
    Q_OBJECT

private slots:
    void aLineWrittenCharacterByCharacterIsShownOnceAtItsEnd()
    {
        ConsoleRig rig;
        std::cout << 'a' << 'b' << 'c';
        QCOMPARE(rig.view().toPlainText(), QString());
        std::cout << '\n';
        QCOMPARE(rig.view().toPlainText(), QStringLiteral("abc"));
    }

    void aBlockIsShownAtOnceWithItsLineEnds()
    {
        ConsoleRig rig;
        std::cout << "one\ntwo";
        QCOMPARE(rig.lines(), QStringList({"one", "two"}));
    }

    void keepsAnEmptyParagraphForEndl()
    {
        ConsoleRig rig;
        std::cout << "one" << std::endl << "two" << std::endl;
        QCOMPARE(rig.lines(), QStringList({"one", "", "two", ""}));
    }

    void keepsReadingATextToItsFirstZeroWhateverItsLength()
    {
        ConsoleRig rig;
        std::cout.write("seen\0unseen", 11);
        QCOMPARE(rig.lines(), QStringList{"seen"});
    }

    void outputIsGreenAndErrorsAreRed()
    {
        ConsoleRig rig;
        std::cout << "output";
        std::cerr << "error";
        QCOMPARE(rig.lines(), QStringList({"output", "error"}));
        QCOMPARE(rig.colorOfLine(0), s_green);
        QCOMPARE(rig.colorOfLine(1), s_red);
    }

    void bytesAreReadAsUtf8AndOtherwiseAsLatin1()
    {
        ConsoleRig rig;
        std::cout << "Gr\xc3\xb6\xc3\x9f"
                     "e";
        std::cout << "Gr\xf6\xdf"
                     "e";
        QCOMPARE(rig.lines(),
                 QStringList({QString::fromUtf8("Größe"), QString::fromUtf8("Größe")}));
    }

    void nothingIsReadAsMarkup()
    {
        ConsoleRig rig;
        std::cerr << "a<b and c>d";
        QCOMPARE(rig.lines(), QStringList{"a<b and c>d"});
        QCOMPARE(rig.colorOfLine(0), s_red);
    }

    void aReportIsShownAtTheNextTurnInTheColourOfItsSeverity()
    {
        ConsoleRig rig;
        SoDebugError::post("source", "an error");
        SoDebugError::postWarning("source", "a warning");
        SoDebugError::postInfo("source", "an information");
        QCOMPARE(rig.view().toPlainText(), QString());
        QCOMPARE(rig.arrivedLines(), QStringList({"Coin error in source(): an error",
                                                  "Coin warning in source(): a warning",
                                                  "Coin info in source(): an information"}));
        QCOMPARE(rig.colorOfLine(0), s_red);
        QCOMPARE(rig.colorOfLine(1), s_yellow);
        QCOMPARE(rig.colorOfLine(2), s_green);
    }

    void everyOtherClassReportsErrors()
    {
        ConsoleRig rig;
        SoError::post("general");
        SoErrorStack::post("stack");
        SoGLError::post("OpenGL");
        SoMemoryError::post("memory");
        const QStringList lines = rig.arrivedLines();
        QCOMPARE(lines.size(), 4);
        for (const char* const text : {"general", "stack", "OpenGL", "memory"})
            QCOMPARE(lines.filter(QLatin1String(text)).size(), 1);
        for (int i = 0; i < lines.size(); ++i)
            QCOMPARE(rig.colorOfLine(i), s_red);
    }

    void aReadErrorIsAlwaysAnError()
    {
        ConsoleRig rig;
        rig.console.outputWarnings();
        rig.console.outputInfos();
        readBrokenScene();
        QVERIFY(rig.arrivedLines().first().startsWith(QStringLiteral("Coin read error: ")));
        QCOMPARE(rig.colorOfLine(0), s_red);
    }

    void withWarningsOffAWarningLeavesTheViewUnchangedAndAnErrorIsShown()
    {
        ConsoleRig rig;
        rig.console.outputWarnings();
        SoDebugError::postWarning("source", "a warning");
        QCOMPARE(rig.arrivedLines(), QStringList{""});
        SoDebugError::post("source", "an error");
        QCOMPARE(rig.arrivedLines(), QStringList{"Coin error in source(): an error"});
        QCOMPARE(rig.colorOfLine(0), s_red);
    }

    void eachReportTravelsAsOneEventOfTheFirstUserType()
    {
        ConsoleRig rig;
        EventLog log;
        rig.console.installEventFilter(&log);
        SoDebugError::postWarning("source", "a warning");
        SoError::post("an error");
        QCOMPARE(log.events, QStringList());
        rig.arrivedLines();
        QCOMPARE(log.events, QStringList({"2 Coin warning in source(): a warning", "0 an error"}));
    }

    void anEventOfAnyOtherKindIsAnError()
    {
        ConsoleRig rig;
        TvkConsole::ConsoleEvent event(QStringLiteral("strange"), 17);
        QCoreApplication::sendEvent(&rig.console, &event);
        QCOMPARE(rig.lines(), QStringList{"strange"});
        QCOMPARE(rig.colorOfLine(0), s_red);
    }

    void aForeignEventOfTheSameNumberIsNoMessage()
    {
        ConsoleRig rig;
        QEvent event(QEvent::User);
        QCoreApplication::sendEvent(&rig.console, &event);
        QCOMPARE(rig.view().toPlainText(), QString());
    }

    void reportsAreShownAlsoBeforeActivation()
    {
        ConsoleRig rig(ConsoleRig::Created);
        SoError::post("early");
        QCOMPARE(rig.arrivedLines(), QStringList{"early"});
    }

    void aReportThatArrivesAfterReleaseGoesToTheStandardErrorStream()
    {
        ConsoleRig rig(ConsoleRig::Created);
        SoError::post("late");
        CaughtStderr caught;
        rig.console.releaseWidgets();
        QCoreApplication::sendPostedEvents(&rig.console);
        QVERIFY(caught.text().contains("late"));
    }

    void aHandlerThatSomebodyPutsBackAfterTheConsoleIsGoneIsHarmless()
    {
        SoErrorCB* handler = nullptr;
        void* data = nullptr;
        {
            ConsoleRig rig;
            handler = SoError::getHandlerCallback();
            data = SoError::getHandlerData();
        }
        SoErrorCB* const former = SoError::getHandlerCallback();
        void* const formerData = SoError::getHandlerData();
        CaughtStderr caught;
        SoError::setHandlerCallback(handler, data);
        SoError::post("orphan");
        SoError::setHandlerCallback(former, formerData);
        QVERIFY(caught.text().contains("orphan"));
    }
};

TAVRIK_TEST_MAIN(tst_ConsoleMessages)
#include "tst_ConsoleMessages.moc"
