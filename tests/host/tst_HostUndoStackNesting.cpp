#include "tests/host/UndoStackTest.h"
#include "tests/support/TestMain.h"

#include <Inventor/nodes/SoCone.h>

/** Commands that push, clear, kill or wait while the stack runs them. */
class tst_HostUndoStackNesting : public UndoStackTest
{
    Q_OBJECT

private slots:
    void anUndoMayKillOtherContainers();
    void anUndoMayKillItsOwnContainer();
    void aCommandPushedFromInsideAnUndoIsRecordedAfterwards();
    void aCommandPushedFromInsideARedoIsRecordedAfterwards();
    void aCommandPushedFromInsideAnExecuteComesAfterIt();
    void aCommandWhoseFieldDiesBeforeItIsRecordedIsNotRecorded();
    void clearingFromInsideAnUndoClears();
    void anEventLoopInsideACommandLeavesTheListAlone();
};

void tst_HostUndoStackNesting::anUndoMayKillOtherContainers()
{
    SoCone* first = newCone("first");
    SoCone* second = newCone("second");
    push("a", &first->height);
    RecordingCommand* killer = command("killer");
    killer->onUndo = [=] {
        first->unref();
        second->unref();
    };
    m_stack->push(killer);
    push("b", &second->height);
    list().undo();
    list().undo();
    QVERIFY(m_log.contains("a deleted"));
    QVERIFY(m_log.contains("b deleted"));
    QCoreApplication::processEvents();
    QCOMPARE(texts(), QStringList{"Edit"});
    QCOMPARE(list().index(), 0);
    list().redo();
    QCOMPARE(m_log.last(), QString("killer redo"));
}

void tst_HostUndoStackNesting::anUndoMayKillItsOwnContainer()
{
    SoCone* cone = newCone("hat");
    RecordingCommand* killer = command("killer", &cone->height);
    killer->onUndo = [this, cone] {
        cone->unref();
        m_log << "still running";
    };
    m_stack->push(killer);
    list().undo();
    QCOMPARE(m_log,
             (QStringList{"killer execute", "killer undo", "still running", "killer deleted"}));
    QCoreApplication::processEvents();
    QCOMPARE(list().count(), 0);
}

void tst_HostUndoStackNesting::aCommandPushedFromInsideAnUndoIsRecordedAfterwards()
{
    push("a");
    RecordingCommand* outer = command("outer");
    outer->onUndo = [this] { push("inner"); };
    m_stack->push(outer);
    m_log.clear();
    list().undo();
    QCOMPARE(m_log, (QStringList{"outer undo", "inner execute"}));
    QCoreApplication::processEvents();
    // A new edit takes the place of what could be redone.
    QVERIFY(m_log.contains("outer deleted"));
    QCOMPARE(list().count(), 2);
    list().undo();
    list().undo();
    QCOMPARE(m_log.mid(3), (QStringList{"inner undo", "a undo"}));
}

void tst_HostUndoStackNesting::aCommandPushedFromInsideARedoIsRecordedAfterwards()
{
    RecordingCommand* outer = command("outer");
    outer->onRedo = [this] { push("inner"); };
    m_stack->push(outer);
    push("next");
    list().setIndex(0);
    list().redo();
    QCoreApplication::processEvents();
    QVERIFY(m_log.contains("next deleted"));
    m_log.clear();
    list().setIndex(0);
    QCOMPARE(m_log, (QStringList{"inner undo", "outer undo"}));
}

void tst_HostUndoStackNesting::aCommandPushedFromInsideAnExecuteComesAfterIt()
{
    RecordingCommand* outer = command("outer");
    outer->onExecute = [this] { push("inner"); };
    m_stack->push(outer);
    QCOMPARE(list().count(), 2);
    m_log.clear();
    list().setIndex(0);
    QCOMPARE(m_log, (QStringList{"inner undo", "outer undo"}));
}

void tst_HostUndoStackNesting::aCommandWhoseFieldDiesBeforeItIsRecordedIsNotRecorded()
{
    SoCone* cone = newCone("hat");
    RecordingCommand* outer = command("outer");
    outer->onUndo = [=] {
        push("inner", &cone->height);
        cone->unref();
    };
    m_stack->push(outer);
    list().undo();
    QCOMPARE(m_log.last(), QString("inner deleted"));
    QCoreApplication::processEvents();
    QCOMPARE(texts(), QStringList{"Edit"});
    QVERIFY(list().canRedo());
}

void tst_HostUndoStackNesting::clearingFromInsideAnUndoClears()
{
    push("a");
    RecordingCommand* outer = command("outer");
    outer->onUndo = [this] {
        m_stack->clear();
        m_log << "cleared";
    };
    m_stack->push(outer);
    push("b");
    list().undo();
    m_log.clear();
    list().undo();
    QCOMPARE(m_log,
             (QStringList{"outer undo", "a deleted", "b deleted", "cleared", "outer deleted"}));
    QCoreApplication::processEvents();
    QCOMPARE(list().count(), 0);
    QVERIFY(!list().canRedo());
}

void tst_HostUndoStackNesting::anEventLoopInsideACommandLeavesTheListAlone()
{
    SoCone* cone = newCone("hat");
    push("a", &cone->height);
    push("b");
    RecordingCommand* modal = command("modal");
    modal->onUndo = [this, cone] {
        cone->unref();
        push("inner");
        QCoreApplication::processEvents();
        m_log << QString("%1 entries").arg(list().count());
    };
    m_stack->push(modal);
    m_log.clear();
    list().undo();
    QCOMPARE(m_log, (QStringList{"modal undo", "a deleted", "inner execute", "3 entries"}));
    QCoreApplication::processEvents();
    m_log.clear();
    list().setIndex(0);
    QCOMPARE(m_log, (QStringList{"inner undo", "b undo"}));
}

TAVRIK_TEST_MAIN(tst_HostUndoStackNesting)
#include "tst_HostUndoStackNesting.moc"
