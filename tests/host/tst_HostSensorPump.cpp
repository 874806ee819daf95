#include "lib/HostSensorPump.h"

#include "tests/support/TestMain.h"

#include <Inventor/SoDB.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/sensors/SoAlarmSensor.h>
#include <Inventor/sensors/SoFieldSensor.h>
#include <Inventor/sensors/SoSensorManager.h>

#include <QEventLoop>

#include <functional>

class tst_HostSensorPump : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aStartedPumpRunsTheDelayQueue();
    void aStartedPumpRunsTheTimerQueue();
    void aPumpThatWasNotStartedRunsNothingByItself();
    void aStoppedPumpRunsNothingByItself();
    void pumpingRunsWhatIsDueAtOnce();
    void pumpingFromInsideACallbackIsIgnored();
    void pumpingFromInsideATimerCallbackIsIgnored();
    void anEventLoopInsideACallbackIsSafe();
    void aCallbackMayStopThePump();
    void itLeavesTheChangedCallbackToItsOwner();
    void itIsIdleWhenNothingIsPending();

private:
    static void run(void* test, SoSensor*);

    SoCone* m_cone = nullptr;
    SoFieldSensor m_sensor;
    int m_runs = 0;
    std::function<void()> m_inside;
};

void tst_HostSensorPump::run(void* test, SoSensor*)
{
    auto& self = *static_cast<tst_HostSensorPump*>(test);
    ++self.m_runs;
    if (self.m_inside)
        self.m_inside();
}

void tst_HostSensorPump::init()
{
    // The clock field keeps the timer queue busy all by itself.
    SoDB::setRealTimeInterval(SbTime::zero());
    m_cone = new SoCone;
    m_cone->ref();
    m_sensor.setFunction(run);
    m_sensor.setData(this);
    m_sensor.attach(&m_cone->height);
    m_runs = 0;
    m_inside = nullptr;
}

void tst_HostSensorPump::cleanup()
{
    m_sensor.detach();
    m_cone->unref();
}

void tst_HostSensorPump::aStartedPumpRunsTheDelayQueue()
{
    HostSensorPump pump;
    pump.start();
    m_cone->height.setValue(3);
    QCOMPARE(m_runs, 0);
    QTRY_COMPARE(m_runs, 1);
}

void tst_HostSensorPump::aStartedPumpRunsTheTimerQueue()
{
    HostSensorPump pump;
    pump.start();
    SoAlarmSensor alarm(run, this);
    alarm.setTimeFromNow(SbTime(0.02));
    alarm.schedule();
    QTRY_COMPARE(m_runs, 1);
}

void tst_HostSensorPump::aPumpThatWasNotStartedRunsNothingByItself()
{
    HostSensorPump pump;
    m_cone->height.setValue(3);
    QTest::qWait(100);
    QCOMPARE(m_runs, 0);
}

void tst_HostSensorPump::aStoppedPumpRunsNothingByItself()
{
    HostSensorPump pump;
    pump.start();
    pump.stop();
    m_cone->height.setValue(3);
    QTest::qWait(100);
    QCOMPARE(m_runs, 0);
}

void tst_HostSensorPump::pumpingRunsWhatIsDueAtOnce()
{
    HostSensorPump pump;
    m_cone->height.setValue(3);
    pump.pump();
    QCOMPARE(m_runs, 1);
}

void tst_HostSensorPump::pumpingFromInsideACallbackIsIgnored()
{
    HostSensorPump pump;
    m_inside = [&] {
        m_inside = nullptr;
        m_cone->height.setValue(4);
        pump.pump();
        QCOMPARE(m_runs, 1);
    };
    m_cone->height.setValue(3);
    pump.pump();
    pump.pump();
    QCOMPARE(m_runs, 2);
}

void tst_HostSensorPump::pumpingFromInsideATimerCallbackIsIgnored()
{
    HostSensorPump pump;
    m_inside = [&] {
        m_inside = nullptr;
        m_cone->height.setValue(4);
        pump.pump();
        QCOMPARE(m_runs, 1);
    };
    SoAlarmSensor alarm(run, this);
    alarm.setTime(SbTime::getTimeOfDay());
    alarm.schedule();
    pump.pump();
    QCOMPARE(m_runs, 2);
}

void tst_HostSensorPump::anEventLoopInsideACallbackIsSafe()
{
    HostSensorPump pump;
    pump.start();
    m_inside = [&] {
        m_inside = nullptr;
        m_cone->height.setValue(4);
        QEventLoop dialog;
        QTimer::singleShot(100, &dialog, SLOT(quit()));
        dialog.exec();
        QCOMPARE(m_runs, 1);
    };
    m_cone->height.setValue(3);
    QTRY_COMPARE(m_runs, 2);
    m_cone->height.setValue(5);
    QTRY_COMPARE(m_runs, 3);
}

void tst_HostSensorPump::aCallbackMayStopThePump()
{
    HostSensorPump pump;
    pump.start();
    m_inside = [&] {
        pump.stop();
        m_cone->height.setValue(4);
    };
    m_cone->height.setValue(3);
    QTRY_VERIFY(m_runs > 0);
    const int runs = m_runs;
    m_inside = nullptr;
    QTest::qWait(100);
    QCOMPARE(m_runs, runs);
}

void tst_HostSensorPump::itLeavesTheChangedCallbackToItsOwner()
{
    int changes = 0;
    SoSensorManager& sensors = *SoDB::getSensorManager();
    sensors.setChangedCallback([](void* count) { ++*static_cast<int*>(count); }, &changes);
    HostSensorPump pump;
    pump.start();
    m_cone->height.setValue(3);
    QTRY_COMPARE(m_runs, 1);
    QVERIFY(changes > 0);
    changes = 0;
    pump.stop();
    m_cone->height.setValue(4);
    QVERIFY(changes > 0);
    sensors.setChangedCallback(nullptr, nullptr);
}

void tst_HostSensorPump::itIsIdleWhenNothingIsPending()
{
    HostSensorPump pump;
    pump.start();
    const QTimer* timer = pump.findChild<QTimer*>();
    QVERIFY(timer);
    pump.pump();
    const int idle = timer->interval();
    SoAlarmSensor alarm(run, this);
    alarm.setTimeFromNow(SbTime(0.015));
    alarm.schedule();
    pump.pump();
    QVERIFY(timer->interval() < idle);
    QTRY_COMPARE(m_runs, 1);
    QTRY_COMPARE(timer->interval(), idle);
}

TAVRIK_TEST_MAIN(tst_HostSensorPump)
#include "tst_HostSensorPump.moc"
