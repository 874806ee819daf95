#include "tests/src/Console/ConsoleRig.h"

#include "tests/support/CaughtStderr.h"
#include "tests/support/TestMain.h"

#include <Inventor/errors/SoDebugError.h>

#include <QElapsedTimer>

#include <atomic>
#include <thread>
#include <vector>

namespace {

constexpr int s_threads = 8;

/** Eight threads that each call a function with their number and a running one. */
class Storm
{
public:
    template <class Say>
    explicit Storm(int messages, Say say)
    {
        for (int thread = 0; thread < s_threads; ++thread)
            m_threads.emplace_back([this, thread, messages, say] {
                for (int i = 0; i < messages && !m_stopped; ++i)
                    say(thread, i);
                ++m_finished;
            });
    }
    ~Storm() { join(); }
    Storm(const Storm&) = delete;
    Storm& operator=(const Storm&) = delete;

    bool isOver() const { return m_finished == s_threads; }
    void stop() { m_stopped = true; }
    void join()
    {
        for (std::thread& thread : m_threads)
            if (thread.joinable())
                thread.join();
    }

private:
    std::vector<std::thread> m_threads;
    std::atomic<int> m_finished{0};
    std::atomic<bool> m_stopped{false};
};

void report(int thread, int number)
{
    SoDebugError::postInfo("storm", "%d %d", thread, number);
}

/** Thread and number of each line that ends in them; the others are left out. */
std::vector<std::pair<int, int>> messagesIn(const QStringList& lines)
{
    std::vector<std::pair<int, int>> messages;
    for (const QString& line : lines) {
        const QStringList words = line.split(' ');
        bool hasThread = false;
        bool hasNumber = false;
        const int thread = words.value(words.size() - 2).toInt(&hasThread);
        const int number = words.last().toInt(&hasNumber);
        if (hasThread && hasNumber)
            messages.emplace_back(thread, number);
    }
    return messages;
}

/** The first message that is older than one before it of the same thread; empty if none is. */
QString firstOutOfOrder(const QStringList& lines)
{
    std::vector<int> last(s_threads, -1);
    for (const auto& [thread, number] : messagesIn(lines)) {
        if (number <= last.at(std::size_t(thread)))
            return QStringLiteral("thread %1: %2").arg(thread).arg(number);
        last.at(std::size_t(thread)) = number;
    }
    return {};
}

void waitForAll(ConsoleRig& rig, int lines)
{
    QTRY_VERIFY_WITH_TIMEOUT(rig.view().blockCount() >= lines, 60000);
}

} // namespace

/** What other threads write and report. */
class tst_ConsoleFromThreads : public QObject
{
    Q_OBJECT

private slots:
    void aStormOfReportsLosesNothingAndKeepsTheOrderOfEachThread()
    {
        constexpr int messages = 2000;
        ConsoleRig rig;
        Storm storm(messages, report);
        waitForAll(rig, s_threads * messages);
        storm.join();
        QCoreApplication::processEvents();
        const QStringList lines = rig.lines();
        QCOMPARE(messagesIn(lines).size(), std::size_t(s_threads * messages));
        QCOMPARE(firstOutOfOrder(lines), QString());
    }

    void reportsInPartsOfTurnsKeepTheirOrder()
    {
        constexpr int messages = 500;
        ConsoleRig rig;
        for (int round = 0; round < 20; ++round) {
            rig.view().clearText();
            Storm storm(messages, [](int thread, int number) {
                report(thread, number);
                if (number % 7 == thread)
                    std::this_thread::yield();
            });
            waitForAll(rig, s_threads * messages);
            QCOMPARE(firstOutOfOrder(rig.lines()), QString());
        }
    }

    void linesWrittenByThreadsArriveWholeAndInOrder()
    {
        constexpr int messages = 500;
        ConsoleRig rig;
        Storm storm(messages, [](int thread, int number) {
            std::cout << QByteArray::number(thread)
                             .append(' ')
                             .append(QByteArray::number(number))
                             .toStdString();
        });
        waitForAll(rig, s_threads * messages);
        const QStringList lines = rig.lines();
        QCOMPARE(messagesIn(lines).size(), std::size_t(s_threads * messages));
        QCOMPARE(firstOutOfOrder(lines), QString());
    }

    void charactersOfSeveralThreadsAreNotMixed()
    {
        constexpr int messages = 50;
        ConsoleRig rig;
        Storm storm(messages, [](int thread, int number) {
            for (const char character :
                 QByteArray::number(thread) + ' ' + QByteArray::number(number) + '\n')
                std::cout.rdbuf()->sputc(character);
        });
        waitForAll(rig, s_threads * messages);
        const QStringList lines = rig.lines();
        QCOMPARE(lines.size(), s_threads * messages);
        QCOMPARE(messagesIn(lines).size(), std::size_t(lines.size()));
        QCOMPARE(firstOutOfOrder(lines), QString());
    }

    void aStormIsShownInManyTurnsOfTheEventLoop()
    {
        constexpr int messages = 10000;
        ConsoleRig rig;
        Storm(messages, report).join();
        int turns = 0;
        while (rig.view().blockCount() < s_threads * messages) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            ++turns;
        }
        QVERIFY2(turns > 5, qPrintable(QString::number(turns)));
        QCOMPARE(firstOutOfOrder(rig.lines()), QString());
    }

    void aStormWhileTheConsoleLivesItsLivesCrashesNothing()
    {
        CaughtStderr elsewhere;
        std::streambuf* const out = std::cout.rdbuf();
        QStringList lines;
        {
            ConsoleRig rig;
            Storm storm(1000000, [](int thread, int number) {
                report(thread, number);
                std::cerr.rdbuf()->sputc(number % 10 ? 'x' : '\n');
            });
            QElapsedTimer clock;
            clock.start();
            while (clock.elapsed() < 2000) {
                rig.console.hide();
                QCoreApplication::processEvents();
                rig.console.show();
                rig.console.deactivate();
                QCoreApplication::processEvents();
                rig.console.activate();
                lines = rig.lines();
                if (clock.elapsed() % 3)
                    continue;
                rig.console.deactivate();
                rig.console.releaseWidgets();
                rig.console.createWidgets();
                rig.console.activate();
            }
            storm.stop();
            storm.join();
            QCoreApplication::processEvents();
            lines = rig.lines();
        }
        QVERIFY(!lines.isEmpty());
        QCOMPARE(firstOutOfOrder(lines.filter(QStringLiteral("storm"))), QString());
        QCOMPARE(std::cout.rdbuf(), out);
    }

    void aConsoleThatDiesInAStormPassesTheRestOn()
    {
        CaughtStderr elsewhere;
        Storm storm(1000000, report);
        for (int i = 0; i < 50; ++i) {
            RecordingHost host;
            TvkConsole console;
            console.createWidgets();
            console.activate();
            QCoreApplication::processEvents();
            console.deactivate();
            console.releaseWidgets();
        }
        storm.stop();
        storm.join();
        QVERIFY(elsewhere.text().contains("storm"));
    }
};

TAVRIK_TEST_MAIN(tst_ConsoleFromThreads)
#include "tst_ConsoleFromThreads.moc"
