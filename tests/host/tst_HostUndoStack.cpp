#include "lib/HostUndoStack.h"

#include "tests/support/RecordingCommand.h"
#include "tests/support/TestMain.h"

#include <Inventor/SoDB.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/sensors/SoSensorManager.h>

#include <QSignalSpy>
#include <QUndoView>

#include <memory>

/** A command that really writes: undo and redo move a cone's height between two values. */
class HeightCommand : public TvkCommand
{
public:
    explicit HeightCommand(SoCone& cone, float to)
        : TvkCommand(&cone.height), m_cone(cone), m_from(cone.height.getValue()), m_to(to)
    {}
    void execute() override { m_cone.height.setValue(m_to); }
    void undo() override { m_cone.height.setValue(m_from); }
    void redo() override { m_cone.height.setValue(m_to); }

private:
    SoCone& m_cone;
    const float m_from;
    const float m_to;
};

class tst_HostUndoStack : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void pushingExecutesOnceAndUndoAndRedoFollowTheUser();
    void aNullCommandIsIgnored();
    void anEntryIsWordedFromItsField();
    void aCommandWithoutFieldHasAnEntryToo();
    void everyRunOfACommandSaysEdited();
    void clearingDeletesEveryCommand();
    void destroyingTheStackDeletesEveryCommand();
    void aNewEditDropsWhatCouldBeRedone();

    void entriesOfADeadContainerVanish_data();
    void entriesOfADeadContainerVanish();
    void theCommandsOfADeadContainerAreDeletedAtOnce();
    void allFieldsOfADeadContainerGo();
    void entriesWithoutFieldOutliveEveryContainer();
    void anUndoBeforeTheListIsTidiedTouchesNothingDead();
    void aPushBeforeTheListIsTidiedTidiesIt();
    void takingEntriesOutSaysNothingWasEdited();
    void takingEntriesOutTellsTheViewsOnce();
    void liveFieldsCanBeUndoneAndRedoneAfterwards();
    void aCleanStackStaysClean();
    void theCleanPointMovesWithTheEntriesBelowIt();
    void vanishedEditsDoNotMakeTheStackClean();
    void aFieldThatLaterTakesADeadOnesPlaceIsWatchedAfresh();

    void anUndoMayKillOtherContainers();
    void anUndoMayKillItsOwnContainer();
    void aCommandPushedFromInsideAnUndoIsRecordedAfterwards();
    void aCommandPushedFromInsideARedoIsRecordedAfterwards();
    void aCommandPushedFromInsideAnExecuteComesAfterIt();
    void aCommandWhoseFieldDiesBeforeItIsRecordedIsNotRecorded();
    void clearingFromInsideAnUndoClears();
    void anEventLoopInsideACommandLeavesTheListAlone();

    void tenThousandEntriesOnOneFieldShareOneSensor();
    void aWatchedFieldCostsNothingWhenItChanges();
    void theLastEntryOfAFieldTakesTheSensorAlong();
    void manyDeathsAreTidiedInOneGo();

private:
    RecordingCommand* command(const QString& name, SoField* field = nullptr);
    void push(const QString& name, SoField* field = nullptr);
    QStringList texts() const;
    QUndoStack& list() const { return m_stack->stack(); }

    std::unique_ptr<HostUndoStack> m_stack;
    QStringList m_log;
};

namespace {
SoCone* newCone(const char* name)
{
    auto* cone = new SoCone;
    cone->ref();
    cone->setName(name);
    return cone;
}
} // namespace

void tst_HostUndoStack::init()
{
    m_stack = std::make_unique<HostUndoStack>();
    m_log.clear();
}

void tst_HostUndoStack::cleanup()
{
    m_stack.reset();
}

RecordingCommand* tst_HostUndoStack::command(const QString& name, SoField* field)
{
    return new RecordingCommand(name, m_log, field);
}

void tst_HostUndoStack::push(const QString& name, SoField* field)
{
    m_stack->push(command(name, field));
}

QStringList tst_HostUndoStack::texts() const
{
    QStringList result;
    for (int i = 0; i < list().count(); ++i)
        result << list().text(i);
    return result;
}

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

void tst_HostUndoStack::entriesOfADeadContainerVanish_data()
{
    // Entries as letters: x on the container that dies, others on one that lives. The number is
    // how many of them are done, that is, may be undone.
    QTest::addColumn<QString>("before");
    QTest::addColumn<int>("done");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("doneAfter");
    QTest::newRow("first") << "xab" << 3 << "ab" << 2;
    QTest::newRow("middle") << "axb" << 3 << "ab" << 2;
    QTest::newRow("last") << "abx" << 3 << "ab" << 2;
    QTest::newRow("several") << "xaxxbxcx" << 8 << "abc" << 3;
    QTest::newRow("all") << "xxx" << 3 << "" << 0;
    QTest::newRow("the only one") << "x" << 1 << "" << 0;
    QTest::newRow("first of the undone") << "axb" << 1 << "ab" << 1;
    QTest::newRow("last of the undone") << "abx" << 1 << "ab" << 1;
    QTest::newRow("all undone") << "xaxbx" << 0 << "ab" << 0;
    QTest::newRow("done and undone") << "xaxxbxcx" << 4 << "abc" << 1;
    QTest::newRow("at the boundary") << "axxb" << 2 << "ab" << 1;
}

void tst_HostUndoStack::entriesOfADeadContainerVanish()
{
    QFETCH(QString, before);
    QFETCH(int, done);
    QFETCH(QString, after);
    QFETCH(int, doneAfter);
    SoCone* dying = newCone("x");
    std::vector<SoCone*> living;
    for (const QChar letter : before) {
        if (letter != 'x')
            living.push_back(newCone(QString(letter).toLatin1()));
        SoCone* cone = letter == 'x' ? dying : living.back();
        push(letter, &cone->height);
    }
    list().setIndex(done);
    m_log.clear();
    dying->unref();
    QCOMPARE(m_log.count("x deleted"), before.count('x'));
    QCOMPARE(m_log.size(), before.count('x'));
    QCoreApplication::processEvents();
    QStringList expected;
    for (const QChar letter : after)
        expected << QString("Cone \"%1\".height").arg(letter);
    QCOMPARE(texts(), expected);
    QCOMPARE(list().index(), doneAfter);
    QCOMPARE(m_log.size(), before.count('x'));
    QCOMPARE(m_stack->watchedFields(), after.size());
    for (SoCone* cone : living)
        cone->unref();
}

void tst_HostUndoStack::theCommandsOfADeadContainerAreDeletedAtOnce()
{
    SoCone* cone = newCone("hat");
    push("a", &cone->height);
    push("b");
    push("c", &cone->height);
    m_log.clear();
    cone->unref();
    m_log.sort();
    QCOMPARE(m_log, (QStringList{"a deleted", "c deleted"}));
}

void tst_HostUndoStack::allFieldsOfADeadContainerGo()
{
    SoCone* cone = newCone("hat");
    push("a", &cone->height);
    push("b", &cone->bottomRadius);
    push("c", &cone->parts);
    QCOMPARE(m_stack->watchedFields(), 3);
    cone->unref();
    QCoreApplication::processEvents();
    QCOMPARE(list().count(), 0);
    QCOMPARE(m_stack->watchedFields(), 0);
}

void tst_HostUndoStack::entriesWithoutFieldOutliveEveryContainer()
{
    SoCone* cone = newCone("hat");
    push("a");
    push("b", &cone->height);
    cone->unref();
    QCoreApplication::processEvents();
    QCOMPARE(texts(), QStringList{"Edit"});
    list().undo();
    QCOMPARE(m_log.last(), QString("a undo"));
}

void tst_HostUndoStack::anUndoBeforeTheListIsTidiedTouchesNothingDead()
{
    SoCone* cone = newCone("hat");
    push("a");
    push("b", &cone->height);
    cone->unref();
    m_log.clear();
    list().undo();
    QVERIFY2(m_log.isEmpty(), qPrintable(m_log.join(", ")));
    QCoreApplication::processEvents();
    QCOMPARE(texts(), QStringList{"Edit"});
    QCOMPARE(list().index(), 1);
}

void tst_HostUndoStack::aPushBeforeTheListIsTidiedTidiesIt()
{
    SoCone* cone = newCone("hat");
    push("a", &cone->height);
    cone->unref();
    push("b");
    QCOMPARE(texts(), QStringList{"Edit"});
    QCOMPARE(list().index(), 1);
}

void tst_HostUndoStack::takingEntriesOutSaysNothingWasEdited()
{
    SoCone* cone = newCone("hat");
    push("a");
    push("b", &cone->height);
    push("c");
    list().undo();
    QSignalSpy edited(m_stack.get(), SIGNAL(edited()));
    m_log.clear();
    cone->unref();
    QCoreApplication::processEvents();
    QCOMPARE(list().count(), 2);
    QCOMPARE(edited.count(), 0);
    QCOMPARE(m_log, QStringList{"b deleted"});
}

void tst_HostUndoStack::takingEntriesOutTellsTheViewsOnce()
{
    SoCone* cone = newCone("hat");
    SoCone* other = newCone("other");
    for (int i = 0; i < 10; ++i)
        push("a", i % 2 ? &cone->height : &other->height);
    QUndoView view(&list());
    QSignalSpy moved(&list(), SIGNAL(indexChanged(int)));
    QSignalSpy text(&list(), SIGNAL(undoTextChanged(QString)));
    cone->unref();
    QCoreApplication::processEvents();
    QCOMPARE(moved.count(), 1);
    QCOMPARE(text.count(), 1);
    const QAbstractItemModel& rows = *view.model();
    QCOMPARE(rows.rowCount(), 6);
    QCOMPARE(rows.index(5, 0).data().toString(), QString("Cone \"other\".height"));
    QCOMPARE(view.currentIndex().row(), 5);
    other->unref();
}

void tst_HostUndoStack::liveFieldsCanBeUndoneAndRedoneAfterwards()
{
    SoCone* dying = newCone("dying");
    SoCone* cone = newCone("hat");
    m_stack->push(new HeightCommand(*cone, 5));
    m_stack->push(new HeightCommand(*dying, 6));
    m_stack->push(new HeightCommand(*cone, 7));
    dying->unref();
    QCoreApplication::processEvents();
    QCOMPARE(cone->height.getValue(), 7.f);
    list().undo();
    QCOMPARE(cone->height.getValue(), 5.f);
    list().undo();
    QCOMPARE(cone->height.getValue(), 2.f);
    QVERIFY(!list().canUndo());
    list().redo();
    list().redo();
    QCOMPARE(cone->height.getValue(), 7.f);
    QVERIFY(!list().canRedo());
    cone->unref();
}

void tst_HostUndoStack::aCleanStackStaysClean()
{
    SoCone* cone = newCone("hat");
    push("a", &cone->height);
    push("b");
    list().setClean();
    QSignalSpy clean(&list(), SIGNAL(cleanChanged(bool)));
    cone->unref();
    QCoreApplication::processEvents();
    QVERIFY(list().isClean());
    QCOMPARE(clean.count(), 0);
}

void tst_HostUndoStack::theCleanPointMovesWithTheEntriesBelowIt()
{
    SoCone* cone = newCone("hat");
    push("a", &cone->height);
    push("b");
    list().setClean();
    push("c");
    cone->unref();
    QCoreApplication::processEvents();
    QVERIFY(!list().isClean());
    list().undo();
    QVERIFY(list().isClean());
}

void tst_HostUndoStack::vanishedEditsDoNotMakeTheStackClean()
{
    SoCone* cone = newCone("hat");
    push("a");
    list().setClean();
    push("b", &cone->height);
    cone->unref();
    QCoreApplication::processEvents();
    QCOMPARE(list().count(), 1);
    QVERIFY(!list().isClean());
}

void tst_HostUndoStack::aFieldThatLaterTakesADeadOnesPlaceIsWatchedAfresh()
{
    // A container of our own memory, so that the second field surely has the first one's address.
    alignas(SoSFFloat) unsigned char memory[sizeof(SoSFFloat)];
    auto* first = new (memory) SoSFFloat;
    push("a", first);
    first->~SoSFFloat();
    auto* second = new (memory) SoSFFloat;
    push("b", second);
    QCOMPARE(m_stack->watchedFields(), 1);
    list().undo();
    QCOMPARE(m_log.last(), QString("b undo"));
    second->~SoSFFloat();
    QCOMPARE(m_log.last(), QString("b deleted"));
    QCoreApplication::processEvents();
    QCOMPARE(list().count(), 0);
}

void tst_HostUndoStack::anUndoMayKillOtherContainers()
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

void tst_HostUndoStack::anUndoMayKillItsOwnContainer()
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

void tst_HostUndoStack::aCommandPushedFromInsideAnUndoIsRecordedAfterwards()
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

void tst_HostUndoStack::aCommandPushedFromInsideARedoIsRecordedAfterwards()
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

void tst_HostUndoStack::aCommandPushedFromInsideAnExecuteComesAfterIt()
{
    RecordingCommand* outer = command("outer");
    outer->onExecute = [this] { push("inner"); };
    m_stack->push(outer);
    QCOMPARE(list().count(), 2);
    m_log.clear();
    list().setIndex(0);
    QCOMPARE(m_log, (QStringList{"inner undo", "outer undo"}));
}

void tst_HostUndoStack::aCommandWhoseFieldDiesBeforeItIsRecordedIsNotRecorded()
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

void tst_HostUndoStack::clearingFromInsideAnUndoClears()
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

void tst_HostUndoStack::anEventLoopInsideACommandLeavesTheListAlone()
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

void tst_HostUndoStack::manyDeathsAreTidiedInOneGo()
{
    auto* group = new SoSwitch;
    group->ref();
    push("kept");
    for (int i = 0; i < 500; ++i) {
        auto* cone = new SoCone;
        group->addChild(cone);
        push("a", &cone->height);
    }
    QSignalSpy moved(&list(), SIGNAL(indexChanged(int)));
    group->unref();
    QCoreApplication::processEvents();
    QCOMPARE(texts(), QStringList{"Edit"});
    QCOMPARE(moved.count(), 1);
}

TAVRIK_TEST_MAIN(tst_HostUndoStack)
#include "tst_HostUndoStack.moc"
