#include "lib/HostServices.h"

#include "tests/support/RecordingCommand.h"
#include "tests/support/TestMain.h"

#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoSphere.h>

#include <functional>
#include <memory>

/** Listens to the services as a dock does, and does what the test wants done while it is told. */
class Listener : public QObject
{
    Q_OBJECT

public:
    explicit Listener(TvkServices& services)
    {
        connect(&services, SIGNAL(selectedNodeChanged(SoFieldContainer*)),
                SLOT(nodeChanged(SoFieldContainer*)));
        connect(&services, SIGNAL(selectedFieldChanged(SoField*)), SLOT(fieldChanged(SoField*)));
    }

    QStringList log;
    std::function<void(SoFieldContainer*)> onNode;
    std::function<void(SoField*)> onField;

private slots:
    void nodeChanged(SoFieldContainer* node)
    {
        log << QString("node ") + (node ? node->getTypeId().getName().getString() : "null");
        if (onNode)
            onNode(node);
    }
    void fieldChanged(SoField* field)
    {
        log << QString("field ") + (field ? field->getTypeId().getName().getString() : "null");
        if (onField)
            onField(field);
    }
};

class tst_HostServices : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void theyAreTheServicesOfTheProcess();
    void aPushedCommandIsExecutedAndCanBeUndone();

    void selectingANodeAnnouncesIt();
    void selectingTheSameNodeAnnouncesItAgain();
    void selectingNoNodeAnnouncesNull();
    void selectingANodeTakesTheFieldAwayFirst();
    void selectingAFieldAnnouncesIt();
    void selectingTheSameFieldAnnouncesItAgain();
    void aFieldWithoutSelectedNodeIsNone();
    void aFieldOfAnotherNodeIsNone();
    void aFieldOfADeadNodeIsNone();
    void aNodeThatNobodyReferencesSurvivesBeingSelected();

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

private:
    QStringList m_commands; ///< outlives the commands that write into it
    std::unique_ptr<HostServices> m_services;
    std::unique_ptr<Listener> m_listener;
    SoCone* m_cone = nullptr;
};

void tst_HostServices::init()
{
    m_commands.clear();
    m_services = std::make_unique<HostServices>();
    m_listener = std::make_unique<Listener>(*m_services);
    m_cone = new SoCone;
    m_cone->ref();
}

void tst_HostServices::cleanup()
{
    m_services.reset();
    m_listener.reset();
    if (m_cone)
        m_cone->unref();
}

void tst_HostServices::theyAreTheServicesOfTheProcess()
{
    QCOMPARE(TvkServices::getInstance(), m_services.get());
    m_services.reset();
    QCOMPARE(TvkServices::getInstance(), nullptr);
}

void tst_HostServices::aPushedCommandIsExecutedAndCanBeUndone()
{
    m_services->pushCommand(new RecordingCommand("a", m_commands));
    m_services->undoStack().stack().undo();
    QCOMPARE(m_commands, (QStringList{"a execute", "a undo"}));
}

void tst_HostServices::selectingANodeAnnouncesIt()
{
    m_services->selectNode(m_cone);
    QCOMPARE(m_listener->log, QStringList{"node Cone"});
    QCOMPARE(m_services->selectedNode(), m_cone);
}

void tst_HostServices::selectingTheSameNodeAnnouncesItAgain()
{
    m_services->selectNode(m_cone);
    m_services->selectNode(m_cone);
    QCOMPARE(m_listener->log, (QStringList{"node Cone", "node Cone"}));
}

void tst_HostServices::selectingNoNodeAnnouncesNull()
{
    m_services->selectNode(m_cone);
    m_services->selectNode(nullptr);
    QCOMPARE(m_listener->log, (QStringList{"node Cone", "node null"}));
    QCOMPARE(m_services->selectedNode(), nullptr);
}

void tst_HostServices::selectingANodeTakesTheFieldAwayFirst()
{
    auto* sphere = new SoSphere;
    sphere->ref();
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    m_listener->log.clear();
    m_services->selectNode(sphere);
    QCOMPARE(m_listener->log, (QStringList{"field null", "node Sphere"}));
    QCOMPARE(m_services->selectedField(), nullptr);
    sphere->unref();
}

void tst_HostServices::selectingAFieldAnnouncesIt()
{
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    QCOMPARE(m_listener->log, (QStringList{"node Cone", "field SFFloat"}));
    QCOMPARE(m_services->selectedField(), &m_cone->height);
    m_services->selectField(nullptr);
    QCOMPARE(m_listener->log.last(), QString("field null"));
}

void tst_HostServices::selectingTheSameFieldAnnouncesItAgain()
{
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    m_services->selectField(&m_cone->height);
    QCOMPARE(m_listener->log.count("field SFFloat"), 2);
}

void tst_HostServices::aFieldWithoutSelectedNodeIsNone()
{
    m_services->selectField(&m_cone->height);
    QCOMPARE(m_listener->log, QStringList{"field null"});
    QCOMPARE(m_services->selectedField(), nullptr);
}

void tst_HostServices::aFieldOfAnotherNodeIsNone()
{
    auto* other = new SoCone;
    other->ref();
    m_services->selectNode(other);
    m_services->selectField(&m_cone->height);
    QCOMPARE(m_listener->log.last(), QString("field null"));
    other->unref();
}

void tst_HostServices::aFieldOfADeadNodeIsNone()
{
    SoField* field = &m_cone->height;
    m_services->selectNode(m_cone);
    m_cone->unref();
    m_cone = nullptr;
    m_services->selectField(field);
    QCOMPARE(m_listener->log.last(), QString("field null"));
    QCOMPARE(m_services->selectedField(), nullptr);
}

void tst_HostServices::aNodeThatNobodyReferencesSurvivesBeingSelected()
{
    auto* loose = new SoCone;
    m_services->selectNode(loose);
    m_services->selectField(&loose->height);
    QCOMPARE(m_services->selectedNode(), loose);
    QCOMPARE(loose->getRefCount(), 0);
    loose->ref();
    loose->unref();
    QCOMPARE(m_services->selectedNode(), nullptr);
}

void tst_HostServices::theDeathOfTheNodeClearsTheSelectionAtOnce()
{
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    m_listener->log.clear();
    m_cone->unref();
    m_cone = nullptr;
    QCOMPARE(m_services->selectedNode(), nullptr);
    QCOMPARE(m_services->selectedField(), nullptr);
    QVERIFY(m_listener->log.isEmpty());
}

void tst_HostServices::theDeathOfTheNodeIsAnnouncedFromTheEventLoop()
{
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    m_listener->log.clear();
    m_cone->unref();
    m_cone = nullptr;
    QCoreApplication::processEvents();
    QCOMPARE(m_listener->log, (QStringList{"field null", "node null"}));
}

void tst_HostServices::theDeathOfANodeWithoutSelectedFieldSaysNothingOfFields()
{
    m_services->selectNode(m_cone);
    m_cone->unref();
    m_cone = nullptr;
    QCoreApplication::processEvents();
    QCOMPARE(m_listener->log, (QStringList{"node Cone", "node null"}));
}

void tst_HostServices::aSelectionMadeBeforeADeathIsAnnouncedReplacesIt()
{
    auto* sphere = new SoSphere;
    sphere->ref();
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    m_cone->unref();
    m_cone = nullptr;
    m_listener->log.clear();
    m_services->selectNode(sphere);
    QCoreApplication::processEvents();
    QCOMPARE(m_listener->log, (QStringList{"field null", "node Sphere"}));
    QCOMPARE(m_services->selectedNode(), sphere);
    sphere->unref();
}

void tst_HostServices::theDeathOfAFormerNodeSaysNothing()
{
    auto* sphere = new SoSphere;
    sphere->ref();
    m_services->selectNode(m_cone);
    m_services->selectNode(sphere);
    m_listener->log.clear();
    m_cone->unref();
    m_cone = nullptr;
    QCoreApplication::processEvents();
    QVERIFY(m_listener->log.isEmpty());
    QCOMPARE(m_services->selectedNode(), sphere);
    sphere->unref();
}

void tst_HostServices::destroyingTheServicesBeforeADeathIsAnnouncedIsSafe()
{
    m_services->selectNode(m_cone);
    m_listener->log.clear();
    m_cone->unref();
    m_cone = nullptr;
    m_services.reset();
    QCoreApplication::processEvents();
    QVERIFY(m_listener->log.isEmpty());
}

void tst_HostServices::aCommandMayBePushedWhileTheFieldIsTakenAway()
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

void tst_HostServices::aListenerMayDropTheNodeThatIsBeingSelected()
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

void tst_HostServices::aListenerMayDropTheNodeOfTheFieldThatIsBeingSelected()
{
    m_services->selectNode(m_cone);
    bool alive = false;
    m_listener->onField = [&](SoField* field) {
        m_listener->onField = nullptr;
        m_cone->unref();
        m_cone = nullptr;
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

void tst_HostServices::aListenerMaySelectAnotherNode()
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

TAVRIK_TEST_MAIN(tst_HostServices)
#include "tst_HostServices.moc"
