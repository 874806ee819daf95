#include "scenegraph/SbElapsedTime.h"

#include "tests/support/TestMain.h"

class tst_SbElapsedTime : public QObject
{
    Q_OBJECT

private slots:
    void measuresSecondsSinceItWasMade();
    void resettingStartsAgainAtZero();
    void neverGoesBack();
};

void tst_SbElapsedTime::measuresSecondsSinceItWasMade()
{
    const SbElapsedTime time;
    const QElapsedTimer reference = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
    QTest::qSleep(50);
    const double elapsed = time.getElapsed();
    QVERIFY2(elapsed >= 0.05, qPrintable(QString::number(elapsed)));
    const double bound = double(reference.nsecsElapsed()) / 1e9 + 0.05;
    QVERIFY2(elapsed <= bound, qPrintable(QString::number(elapsed)));
}

void tst_SbElapsedTime::resettingStartsAgainAtZero()
{
    SbElapsedTime time;
    QTest::qSleep(50);
    const double before = time.getElapsed();
    time.reset();
    const double after = time.getElapsed();
    QVERIFY2(after < before, qPrintable(QString("%1 %2").arg(before).arg(after)));
}

void tst_SbElapsedTime::neverGoesBack()
{
    const SbElapsedTime time;
    double last = 0;
    for (int i = 0; i < 10000; ++i) {
        const double now = time.getElapsed();
        QVERIFY(now >= last);
        last = now;
    }
}

TAVRIK_TEST_MAIN(tst_SbElapsedTime)
#include "tst_SbElapsedTime.moc"
