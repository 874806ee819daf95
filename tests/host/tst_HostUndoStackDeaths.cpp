#include "tests/host/HeightCommand.h"
#include "tests/host/UndoStackTest.h"
#include "tests/support/TestMain.h"

#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoSwitch.h>

#include <QSignalSpy>
#include <QUndoView>

#include <vector>

/** What becomes of the entries whose field dies. */
class tst_HostUndoStackDeaths : public UndoStackTest
{
    Q_OBJECT

private slots:
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
    void aFieldThatLaterTakesADeadOnesPlaceIsWatchedAfresh();

    void aCleanStackStaysClean();
    void theCleanPointMovesWithTheEntriesBelowIt();
    void vanishedEditsDoNotMakeTheStackClean();

    void manyDeathsAreTidiedInOneGo();
};

void tst_HostUndoStackDeaths::entriesOfADeadContainerVanish_data()
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

void tst_HostUndoStackDeaths::entriesOfADeadContainerVanish()
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

void tst_HostUndoStackDeaths::theCommandsOfADeadContainerAreDeletedAtOnce()
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

void tst_HostUndoStackDeaths::allFieldsOfADeadContainerGo()
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

void tst_HostUndoStackDeaths::entriesWithoutFieldOutliveEveryContainer()
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

void tst_HostUndoStackDeaths::anUndoBeforeTheListIsTidiedTouchesNothingDead()
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

void tst_HostUndoStackDeaths::aPushBeforeTheListIsTidiedTidiesIt()
{
    SoCone* cone = newCone("hat");
    push("a", &cone->height);
    cone->unref();
    push("b");
    QCOMPARE(texts(), QStringList{"Edit"});
    QCOMPARE(list().index(), 1);
}

void tst_HostUndoStackDeaths::takingEntriesOutSaysNothingWasEdited()
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

void tst_HostUndoStackDeaths::takingEntriesOutTellsTheViewsOnce()
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

void tst_HostUndoStackDeaths::liveFieldsCanBeUndoneAndRedoneAfterwards()
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

void tst_HostUndoStackDeaths::aFieldThatLaterTakesADeadOnesPlaceIsWatchedAfresh()
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

void tst_HostUndoStackDeaths::aCleanStackStaysClean()
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

void tst_HostUndoStackDeaths::theCleanPointMovesWithTheEntriesBelowIt()
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

void tst_HostUndoStackDeaths::vanishedEditsDoNotMakeTheStackClean()
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

void tst_HostUndoStackDeaths::manyDeathsAreTidiedInOneGo()
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

TAVRIK_TEST_MAIN(tst_HostUndoStackDeaths)
#include "tst_HostUndoStackDeaths.moc"
