#include "benchmarks/support/Bench.h"
#include "tests/support/TestMain.h"

#include <QElapsedTimer>
#include <QThread>
#include <QtTest>

namespace {

/** Keeps the processor busy for so many milliseconds of a clock on the wall. */
void work(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds)
        continue;
}

} // namespace

class tst_Bench : public QObject
{
    Q_OBJECT

private slots:
    void worksTakeTurnsAndEachIsPreparedBeforeEachRun()
    {
        QStringList done;
        const auto note = [&done](const char* what) {
            return [&done, what] { done << QLatin1String(what); };
        };
        const std::vector<double> times =
            Bench::medians(2, {{note("a"), note("for a")}, {note("b"), nullptr}});
        QCOMPARE(times.size(), std::size_t(2));
        QCOMPARE(done, (QStringList{"for a", "a", "b", "for a", "a", "b"}));
    }

    void preparingIsNotTimed()
    {
        const auto prepare = [] { work(60); };
        const double time = Bench::medians(1, {{[] {}, prepare}}).front();
        QVERIFY2(time < 0.03, qPrintable(QString::number(time)));
    }

    void theTimeOfTheProcessorCountsAndNotThatOfTheWall()
    {
        const std::vector<double> times = Bench::medians(
            1, {{[] { QThread::msleep(100); }, nullptr}, {[] { work(60); }, nullptr}});
        QVERIFY2(times[0] < 0.05, qPrintable(QString::number(times[0])));
        QVERIFY2(times[1] < 0.1 && times[1] > 0.0, qPrintable(QString::number(times[1])));
    }

    void aRunThatIsOutOfTheOrdinaryDoesNotCount()
    {
        int run = 0;
        const auto slowAtFirst = [&run] { work(run++ == 0 ? 150 : 0); };
        const double time = Bench::medians(5, {{slowAtFirst, nullptr}}).front();
        QCOMPARE(run, 5);
        QVERIFY2(time < 0.02, qPrintable(QString::number(time)));
        run = 0;
        QVERIFY(Bench::median(5, slowAtFirst) < 0.05);
    }
};

TAVRIK_TEST_MAIN(tst_Bench)
#include "tst_Bench.moc"
