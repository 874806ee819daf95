#include "lib/HostDefaults.h"
#include "lib/HostFieldList.h"
#include "lib/HostPluginsManager.h"
#include "lib/HostServices.h"

#include "tests/support/RecordingExtension.h"
#include "tests/support/RecordingPlugin.h"
#include "tests/support/TestMain.h"

#include <TvkProfileSetting.h>

#include <Inventor/engines/SoCalculator.h>
#include <Inventor/nodes/SoCone.h>

#include <memory>

class tst_HostNodeEditor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void tellsWhoItIs();
    void handlesEveryNode();
    void hasAWidgetOnceItIsBuilt();
    void activatedItListsTheFieldsOfItsNode();
    void deactivatedItListsNothing();
    void activatedWithoutANodeItListsNothing();
    void whatIsNoNodeIsNotListed();
    void withoutWidgetsItCanBeActivatedAndDeactivated();
    void releasedItCanBeBuiltAgain();
    void theDeathOfTheNodeTakesItAway();
    void theHostsOwnPluginOffersIt();
    void itStandsUnderTheSettingOfADockOfAnotherPlugin();

private:
    void edit(SoFieldContainer* object);
    const HostFieldList& list() const
    {
        return *static_cast<HostFieldList*>(m_editor->getWidget());
    }

    SoCone* m_cone = nullptr;
    std::unique_ptr<HostServices> m_services;
    std::unique_ptr<HostNodeEditor> m_editor;
};

void tst_HostNodeEditor::init()
{
    m_cone = new SoCone;
    m_cone->ref();
    m_services = std::make_unique<HostServices>();
    m_editor = std::make_unique<HostNodeEditor>(*m_services);
    m_editor->createWidgets();
}

void tst_HostNodeEditor::cleanup()
{
    m_editor.reset();
    m_services.reset();
    if (m_cone)
        m_cone->unref();
    m_cone = nullptr;
}

void tst_HostNodeEditor::edit(SoFieldContainer* object)
{
    SoTypedObject handle(object);
    m_editor->setEditedObject(&handle);
    m_editor->activate();
}

void tst_HostNodeEditor::tellsWhoItIs()
{
    QCOMPARE(m_editor->getName().getString(), "Fields");
    QCOMPARE(m_editor->getDescription().getString(), "Lists the fields of a node.");
    QCOMPARE(m_editor->getVendor().getString(), "Quelvar");
    QCOMPARE(m_editor->getVersion().getString(), "1.0.0");
}

void tst_HostNodeEditor::handlesEveryNode()
{
    QVERIFY(m_editor->getHandledType() == SoNode::getClassTypeId());
}

void tst_HostNodeEditor::hasAWidgetOnceItIsBuilt()
{
    const HostNodeEditor another(*m_services);
    QVERIFY(!another.getWidget());
    QVERIFY(m_editor->getWidget());
    QVERIFY(m_editor->getWidget()->isHidden());
    QVERIFY(!m_editor->getWidget()->parent());
}

void tst_HostNodeEditor::activatedItListsTheFieldsOfItsNode()
{
    edit(m_cone);
    QCOMPARE(list().model().rowCount(), 3);
    QVERIFY(!list().isHidden());
}

void tst_HostNodeEditor::deactivatedItListsNothing()
{
    edit(m_cone);
    m_editor->deactivate();
    m_editor->deactivate();
    QCOMPARE(list().model().rowCount(), 0);
    QVERIFY(list().isHidden());
}

void tst_HostNodeEditor::activatedWithoutANodeItListsNothing()
{
    m_editor->activate();
    QCOMPARE(list().model().rowCount(), 0);
}

void tst_HostNodeEditor::whatIsNoNodeIsNotListed()
{
    auto* engine = new SoCalculator;
    engine->ref();
    edit(engine);
    QCOMPARE(list().model().rowCount(), 0);
    engine->unref();
}

void tst_HostNodeEditor::withoutWidgetsItCanBeActivatedAndDeactivated()
{
    m_editor->releaseWidgets();
    m_editor->releaseWidgets();
    edit(m_cone);
    QVERIFY(m_editor->isActive());
    m_editor->deactivate();
    QVERIFY(!m_editor->getWidget());
}

void tst_HostNodeEditor::releasedItCanBeBuiltAgain()
{
    m_editor->releaseWidgets();
    m_editor->createWidgets();
    activatedItListsTheFieldsOfItsNode();
}

void tst_HostNodeEditor::theDeathOfTheNodeTakesItAway()
{
    edit(m_cone);
    m_cone->unref();
    m_cone = nullptr;
    QVERIFY(!m_editor->getEditedObject());
    QCOMPARE(list().model().rowCount(), 0);
    m_editor->deactivate();
}

void tst_HostNodeEditor::theHostsOwnPluginOffersIt()
{
    HostDefaults plugin(*m_services);
    QCOMPARE(plugin.getName().getString(), "HostDefaults");
    plugin.load();
    QCOMPARE(plugin.getExtensions().size(), std::size_t(1));
    QVERIFY(qobject_cast<HostNodeEditor*>(plugin.getExtensions().front()));
    plugin.unload();
}

void tst_HostNodeEditor::itStandsUnderTheSettingOfADockOfAnotherPlugin()
{
    QStringList log;
    RecordingExtension dock("dock", log);
    RecordingPlugin other("other", {&dock}, log);
    HostDefaults plugin(*m_services);
    HostPluginsManager manager;
    manager.adopt(plugin);
    manager.adopt(other);
    const auto& controlled = dock.getProfileSetting()->getControlledExtensions();
    QCOMPARE(controlled.size(), std::size_t(1));
    QVERIFY(controlled.count(plugin.getExtensions().front()) == 1);
    manager.release(other);
    manager.release(plugin);
}

TAVRIK_TEST_MAIN(tst_HostNodeEditor)
#include "tst_HostNodeEditor.moc"
