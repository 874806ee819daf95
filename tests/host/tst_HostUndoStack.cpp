#include "tests/host/UndoStackTest.h"
#include "tests/support/TestMain.h"

#include <Inventor/SoDB.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/sensors/SoSensorManager.h>

#include <QSignalSpy>

/** How edits are pushed, worded, undone, redone and deleted. */
class tst_HostUndoStack : public UndoStackTest
{
    Q_OBJECT

private slots:
    void pushingExecutesOnceAndUndoAndRedoFollowTheUser();
    void aNullCommandIsIgnored();
    void anEntryIsWordedFromItsField();
    void aCommandWithoutFieldHasAnEntryToo();
    void everyRunOfACommandSaysEdited();
    void clearingDeletesEveryCommand();
    void destroyingTheStackDeletesEveryCommand();
    void aNewEditDropsWhatCouldBeRedone();

    void tenThousandEntriesOnOneFieldShareOneSensor();
    void aWatchedFieldCostsNothingWhenItChanges();
    void theLastEntryOfAFieldTakesTheSensorAlong();
};

void tst_HostUndoStack::pushingExecutesOnceAndUndoAndRedoFollowTheUser()
{
    push("a");
    QCOMPARE(m_log, QStringList{"a execute"});
    list().undo();
    list().redo();
    list().undo();
    QCOMPARE(m_log, (QStringList{"a execute", "a undo", "a redo", "a undo"}));
}

void tst_HostUndoStack::aNullCommandIsIgnored()
{
    QSignalSpy edited(m_stack.get(), SIGNAL(edited()));
    m_stack->push(nullptr);
    QCOMPARE(list().count(), 0);
    QCOMPARE(edited.count(), 0);
}

void tst_HostUndoStack::anEntryIsWordedFromItsField()
{
    SoCone* cone = newCone("hat");
    push("a", &cone->height);
    QCOMPARE(list().undoText(), QString("Cone \"hat\".height"));
    cone->unref();
}

void tst_HostUndoStack::aCommandWithoutFieldHasAnEntryToo()
{
    push("a");
    QCOMPARE(texts(), QStringList{"Edit"});
    QCOMPARE(m_stack->watchedFields(), 0);
}

void tst_HostUndoStack::everyRunOfACommandSaysEdited()
{
    QSignalSpy edited(m_stack.get(), SIGNAL(edited()));
    push("a");
    push("b");
    QCOMPARE(edited.count(), 2);
    list().setIndex(0);
    QCOMPARE(edited.count(), 4);
    list().redo();
    QCOMPARE(edited.count(), 5);
}

void tst_HostUndoStack::clearingDeletesEveryCommand()
{
    SoCone* cone = newCone("hat");
    push("a", &cone->height);
    push("b");
    list().undo();
    m_log.clear();
    m_stack->clear();
    m_log.sort();
    QCOMPARE(m_log, (QStringList{"a deleted", "b deleted"}));
    QCOMPARE(list().count(), 0);
    QCOMPARE(m_stack->watchedFields(), 0);
    cone->unref();
}

void tst_HostUndoStack::destroyingTheStackDeletesEveryCommand()
{
    SoCone* cone = newCone("hat");
    push("a", &cone->height);
    m_stack.reset();
    QCOMPARE(m_log, (QStringList{"a execute", "a deleted"}));
    cone->unref();
}

void tst_HostUndoStack::aNewEditDropsWhatCouldBeRedone()
{
    push("a");
    push("b");
    list().undo();
    push("c");
    QVERIFY(m_log.contains("b deleted"));
    QCOMPARE(list().count(), 2);
    QCOMPARE(list().index(), 2);
}

void tst_HostUndoStack::tenThousandEntriesOnOneFieldShareOneSensor()
{
    constexpr int count = 10000;
    SoCone* cone = newCone("hat");
    for (int i = 0; i < count; ++i)
        push("a", &cone->height);
    QCOMPARE(list().count(), count);
    QCOMPARE(m_stack->watchedFields(), 1);
    m_log.clear();
    cone->unref();
    QCOMPARE(m_log.size(), count);
    QCoreApplication::processEvents();
    QCOMPARE(list().count(), 0);
}

void tst_HostUndoStack::aWatchedFieldCostsNothingWhenItChanges()
{
    SoCone* cone = newCone("hat");
    SoSensorManager& sensors = *SoDB::getSensorManager();
    sensors.processDelayQueue(TRUE);
    push("a", &cone->height);
    cone->height.setValue(9);
    QVERIFY(!sensors.isDelaySensorPending());
    cone->unref();
}

void tst_HostUndoStack::theLastEntryOfAFieldTakesTheSensorAlong()
{
    SoCone* cone = newCone("hat");
    push("a", &cone->height);
    push("b", &cone->height);
    list().setIndex(0);
    push("c");
    QCOMPARE(m_stack->watchedFields(), 0);
    m_log.clear();
    cone->unref();
    QVERIFY(m_log.isEmpty());
}

TAVRIK_TEST_MAIN(tst_HostUndoStack)
#include "tst_HostUndoStack.moc"
