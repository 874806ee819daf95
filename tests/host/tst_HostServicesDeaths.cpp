#include "tests/host/ServicesTest.h"
#include "tests/support/RecordingCommand.h"
#include "tests/support/TestMain.h"

#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoSphere.h>

/** Selected nodes that die, and listeners that kill, push or select while they are told. */
class tst_HostServicesDeaths : public ServicesTest
{
    Q_OBJECT

private slots:
    void theDeathOfTheNodeClearsTheSelectionAtOnce();
    void theDeathOfTheNodeIsAnnouncedFromTheEventLoop();
    void theDeathOfANodeWithoutSelectedFieldSaysNothingOfFields();
    void aSelectionMadeBeforeADeathIsAnnouncedReplacesIt();
    void theDeathOfAFormerNodeSaysNothing();
    void destroyingTheServicesBeforeADeathIsAnnouncedIsSafe();
    void aCommandMayBePushedWhileTheFieldIsTakenAway();
    void aListenerMayDropTheNodeThatIsBeingSelected();
    void aListenerMayDropTheNodeOfTheFieldThatIsBeingSelected();
    void aListenerMaySelectAnotherNode();
};

void tst_HostServicesDeaths::theDeathOfTheNodeClearsTheSelectionAtOnce()
{
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    m_listener->log.clear();
    killCone();
    QCOMPARE(m_services->selectedNode(), nullptr);
    QCOMPARE(m_services->selectedField(), nullptr);
    QVERIFY(m_listener->log.isEmpty());
}

void tst_HostServicesDeaths::theDeathOfTheNodeIsAnnouncedFromTheEventLoop()
{
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    m_listener->log.clear();
    killCone();
    QCoreApplication::processEvents();
    QCOMPARE(m_listener->log, (QStringList{"field null", "node null"}));
}

void tst_HostServicesDeaths::theDeathOfANodeWithoutSelectedFieldSaysNothingOfFields()
{
    m_services->selectNode(m_cone);
    killCone();
    QCoreApplication::processEvents();
    QCOMPARE(m_listener->log, (QStringList{"node Cone", "node null"}));
}

void tst_HostServicesDeaths::aSelectionMadeBeforeADeathIsAnnouncedReplacesIt()
{
    auto* sphere = new SoSphere;
    sphere->ref();
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    killCone();
    m_listener->log.clear();
    m_services->selectNode(sphere);
    QCoreApplication::processEvents();
    QCOMPARE(m_listener->log, (QStringList{"field null", "node Sphere"}));
    QCOMPARE(m_services->selectedNode(), sphere);
    sphere->unref();
}

void tst_HostServicesDeaths::theDeathOfAFormerNodeSaysNothing()
{
    auto* sphere = new SoSphere;
    sphere->ref();
    m_services->selectNode(m_cone);
    m_services->selectNode(sphere);
    m_listener->log.clear();
    killCone();
    QCoreApplication::processEvents();
    QVERIFY(m_listener->log.isEmpty());
    QCOMPARE(m_services->selectedNode(), sphere);
    sphere->unref();
}

void tst_HostServicesDeaths::destroyingTheServicesBeforeADeathIsAnnouncedIsSafe()
{
    m_services->selectNode(m_cone);
    m_listener->log.clear();
    killCone();
    m_services.reset();
    QCoreApplication::processEvents();
    QVERIFY(m_listener->log.isEmpty());
}

void tst_HostServicesDeaths::aCommandMayBePushedWhileTheFieldIsTakenAway()
{
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    m_listener->onField = [&](SoField*) {
        m_services->pushCommand(new RecordingCommand("late", m_commands, &m_cone->height));
    };
    m_services->selectNode(nullptr);
    QCOMPARE(m_commands, QStringList{"late execute"});
    QCOMPARE(m_services->undoStack().stack().count(), 1);
    QCOMPARE(m_listener->log.last(), QString("node null"));
}

void tst_HostServicesDeaths::aListenerMayDropTheNodeThatIsBeingSelected()
{
    auto* sphere = new SoSphere;
    sphere->ref();
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    m_listener->onField = [sphere](SoField*) { sphere->unref(); };
    m_services->selectNode(sphere);
    QCOMPARE(m_listener->log.last(), QString("node Sphere"));
    QCOMPARE(m_services->selectedNode(), nullptr);
    QCoreApplication::processEvents();
    QCOMPARE(m_listener->log.last(), QString("node null"));
}

void tst_HostServicesDeaths::aListenerMayDropTheNodeOfTheFieldThatIsBeingSelected()
{
    m_services->selectNode(m_cone);
    bool alive = false;
    m_listener->onField = [&](SoField* field) {
        m_listener->onField = nullptr;
        killCone();
        // A listener told later still finds the field.
        SbString text;
        field->get(text);
        alive = text == "2";
    };
    m_services->selectField(&m_cone->height);
    QVERIFY(alive);
    QCOMPARE(m_services->selectedField(), nullptr);
    QCoreApplication::processEvents();
    QCOMPARE(m_listener->log.mid(2), (QStringList{"field null", "node null"}));
}

void tst_HostServicesDeaths::aListenerMaySelectAnotherNode()
{
    auto* sphere = new SoSphere;
    sphere->ref();
    auto* other = new SoSphere;
    other->ref();
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    m_listener->log.clear();
    m_listener->onField = [&](SoField*) { m_services->selectNode(other); };
    m_services->selectNode(sphere);
    QCOMPARE(m_services->selectedNode(), other);
    QCOMPARE(m_listener->log, (QStringList{"field null", "node Sphere"}));
    sphere->unref();
    other->unref();
}

TAVRIK_TEST_MAIN(tst_HostServicesDeaths)
#include "tst_HostServicesDeaths.moc"
