#include "tests/host/ServicesTest.h"
#include "tests/support/RecordingCommand.h"
#include "tests/support/TestMain.h"

#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoSphere.h>

/** How a selection is made, kept and announced. */
class tst_HostServices : public ServicesTest
{
    Q_OBJECT

private slots:
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
    void theSelectionCanBeAnnouncedOnceMore();
    void announcingNothingSaysSo();
    void aListenerMaySelectSomethingElseDuringTheAnnouncement();
};

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
    killCone();
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

void tst_HostServices::theSelectionCanBeAnnouncedOnceMore()
{
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    m_listener->log.clear();
    m_services->announceSelection();
    QCOMPARE(m_listener->log, (QStringList{"node Cone", "field SFFloat"}));
    QCOMPARE(m_services->selectedField(), &m_cone->height);
}

void tst_HostServices::announcingNothingSaysSo()
{
    m_services->announceSelection();
    QCOMPARE(m_listener->log, (QStringList{"node null", "field null"}));
}

void tst_HostServices::aListenerMaySelectSomethingElseDuringTheAnnouncement()
{
    m_services->selectNode(m_cone);
    m_services->selectField(&m_cone->height);
    m_listener->log.clear();
    m_listener->onNode = [this](SoFieldContainer*) {
        m_listener->onNode = nullptr;
        m_services->selectNode(nullptr);
    };
    m_services->announceSelection();
    QCOMPARE(m_listener->log, (QStringList{"node Cone", "field null", "node null"}));
}

TAVRIK_TEST_MAIN(tst_HostServices)
#include "tst_HostServices.moc"
