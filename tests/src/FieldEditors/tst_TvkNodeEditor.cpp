#include "tests/support/EditorDockRig.h"
#include "tests/support/RecordingEditor.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFLineWidget.h"
#include "FieldEditors/TvkNodeEditor.h"

#include <Inventor/engines/SoCalculator.h>
#include <Inventor/nodes/SoCone.h>
#include <Inventor/nodes/SoShape.h>

class tst_TvkNodeEditor : public QObject
{
    Q_OBJECT

private:
    /** The dock, and a cone that is selected. */
    struct Rig : EditorDockRig<TvkNodeEditor>
    {
        Rig() { cone->ref(); }
        ~Rig()
        {
            dock.deactivate();
            cone->unref();
        }
        Rig(const Rig&) = delete;
        Rig& operator=(const Rig&) = delete;

        void select(SoFieldContainer* node) { host.services.selectNode(node); }

        SoCone* cone = new SoCone;
    };

    static SoType node() { return SoNode::getClassTypeId(); }
    static SoType shape() { return SoShape::getClassTypeId(); }
    static SoType cone() { return SoCone::getClassTypeId(); }

private slots:
    void tellsWhoItIs()
    {
        TvkNodeEditor dock;
        QCOMPARE(dock.getName().getString(), "Node Editor");
        QCOMPARE(dock.getDescription().getString(), "Node Editor for Tavrik.");
        QCOMPARE(dock.getVendor().getString(), "Quelvar");
        QCOMPARE(dock.getVersion().getString(), "1.0.0");
    }

    void theDockIsBuiltHiddenTitledAndRefusesDrops()
    {
        Rig rig;
        QVERIFY(rig.window);
        QCOMPARE(rig.window->windowTitle(), QStringLiteral("Node Editor"));
        QVERIFY(!rig.window->acceptDrops());
        QVERIFY(rig.window->isHidden());
    }

    void selectingANodeGivesItToItsEditorAndShowsTheDock()
    {
        Rig rig;
        RecordingEditor editor("editor", node(), rig.log);
        rig.setting.control(&editor);
        rig.select(rig.cone);
        QCOMPARE(rig.log, QStringList({"editor setEditedObject Cone", "editor activate"}));
        QCOMPARE(editor.getEditedObject()->getFieldContainer(),
                 static_cast<SoFieldContainer*>(rig.cone));
        QVERIFY(!rig.window->isHidden());
        QCOMPARE(rig.window->widget(), editor.getWidget());
    }

    void deselectingHidesTheDockAndReleasesTheEditor()
    {
        Rig rig;
        RecordingEditor editor("editor", node(), rig.log);
        rig.setting.control(&editor);
        rig.select(rig.cone);
        rig.log.clear();
        rig.select(nullptr);
        QCOMPARE(rig.log, QStringList({"editor deactivate", "editor setEditedObject null"}));
        QVERIFY(rig.window->isHidden());
        QVERIFY(!rig.window->widget());
        QVERIFY(!editor.getWidget()->parent());
    }

    void deselectingWithNothingSelectedDoesNothing()
    {
        Rig rig;
        RecordingEditor editor("editor", node(), rig.log);
        rig.setting.control(&editor);
        rig.select(nullptr);
        QVERIFY(rig.log.isEmpty());
        QVERIFY(rig.window->isHidden());
    }

    void aNodeThatNoEditorHandlesLeavesTheDockHidden()
    {
        Rig rig;
        RecordingEditor editor("editor", SoGroup::getClassTypeId(), rig.log);
        rig.setting.control(&editor);
        rig.select(rig.cone);
        QVERIFY(rig.log.isEmpty());
        QVERIFY(rig.window->isHidden());
    }

    void editorsOfFieldsLeaveTheDockHidden()
    {
        Rig rig;
        DvSFLineWidget line;
        RecordingEditor any("any", SoField::getClassTypeId(), rig.log);
        rig.setting.control(&line);
        rig.setting.control(&any);
        rig.select(rig.cone);
        QVERIFY(rig.log.isEmpty());
        QVERIFY(!line.getEditedObject());
        QVERIFY(rig.window->isHidden());
    }

    void aNodeWithoutAnEditorAfterOneWithReleasesTheEditorAndHidesTheDock()
    {
        Rig rig;
        RecordingEditor editor("editor", SoGroup::getClassTypeId(), rig.log);
        rig.setting.control(&editor);
        auto* group = new SoGroup;
        group->ref();
        rig.select(group);
        QVERIFY(!rig.window->isHidden());
        rig.select(rig.cone);
        QVERIFY(rig.window->isHidden());
        QVERIFY(!editor.getEditedObject());
        group->unref();
    }

    void theEditorOfABaseClassServesADerivedNode()
    {
        Rig rig;
        RecordingEditor editor("editor", shape(), rig.log);
        rig.setting.control(&editor);
        rig.select(rig.cone);
        QCOMPARE(rig.window->widget(), editor.getWidget());
    }

    void theEditorOfTheMostDerivedClassIsChosenWhateverTheOrder()
    {
        const SoType orders[][3] = {{node(), shape(), cone()}, {node(), cone(), shape()},
                                    {shape(), node(), cone()}, {shape(), cone(), node()},
                                    {cone(), node(), shape()}, {cone(), shape(), node()}};
        for (const auto& types : orders) {
            Rig rig;
            RecordingEditor editors[] = {
                {"a", types[0], rig.log}, {"b", types[1], rig.log}, {"c", types[2], rig.log}};
            QWidget* expected = nullptr;
            for (RecordingEditor& editor : editors) {
                rig.setting.control(&editor);
                if (editor.getHandledType() == cone())
                    expected = editor.getWidget();
            }
            rig.select(rig.cone);
            QCOMPARE(rig.window->widget(), expected);
        }
    }

    void keepsTheLaterOfTwoEditorsForTheSameClass()
    {
        Rig rig;
        RecordingEditor editors[] = {{"one", node(), rig.log}, {"two", node(), rig.log}};
        rig.setting.control(&editors[0]);
        rig.setting.control(&editors[1]);
        rig.select(rig.cone);
        QCOMPARE(rig.window->widget(), editors[1].getWidget());
    }

    void reselectingTheSameNodeRunsTheWholeCycleAgain()
    {
        Rig rig;
        RecordingEditor editor("editor", node(), rig.log);
        rig.setting.control(&editor);
        rig.select(rig.cone);
        rig.log.clear();
        rig.select(rig.cone);
        QCOMPARE(rig.log, QStringList({"editor deactivate", "editor setEditedObject null",
                                       "editor setEditedObject Cone", "editor activate"}));
        QVERIFY(!rig.window->isHidden());
    }

    void aContainerThatIsNoNodeHasNoNodeEditor()
    {
        Rig rig;
        RecordingEditor editor("editor", node(), rig.log);
        rig.setting.control(&editor);
        auto* engine = new SoCalculator;
        engine->ref();
        rig.select(engine);
        QVERIFY(rig.log.isEmpty());
        QVERIFY(rig.window->isHidden());
        engine->unref();
    }

    void aSelectedFieldIsNoneOfItsBusiness()
    {
        Rig rig;
        RecordingEditor nodes("nodes", node(), rig.log);
        RecordingEditor fields("fields", SoField::getClassTypeId(), rig.log);
        rig.setting.control(&nodes);
        rig.setting.control(&fields);
        rig.host.services.selectField(&rig.cone->height);
        QVERIFY(rig.log.isEmpty());
        QVERIFY(rig.window->isHidden());
    }

    void itHearsNothingAnyMoreOnceItIsDeactivated()
    {
        Rig rig;
        RecordingEditor editor("editor", node(), rig.log);
        rig.setting.control(&editor);
        rig.select(rig.cone);
        rig.dock.deactivate();
        QVERIFY(!editor.getEditedObject());
        rig.log.clear();
        rig.select(rig.cone);
        QVERIFY(rig.log.isEmpty());
    }

    void activatedTwiceItIsToldOnce()
    {
        Rig rig;
        RecordingEditor editor("editor", node(), rig.log);
        rig.setting.control(&editor);
        rig.dock.activate();
        rig.select(rig.cone);
        QCOMPARE(rig.log.count(QStringLiteral("editor activate")), 1);
    }

    void releasingTheWidgetsWhileAnEditorIsShownLeavesTheEditorItsOwn()
    {
        Rig rig;
        RecordingEditor editor("editor", node(), rig.log);
        rig.setting.control(&editor);
        rig.select(rig.cone);
        const QPointer<QWidget> widget = editor.getWidget();
        rig.dock.releaseWidgets();
        QVERIFY(!rig.window);
        QVERIFY(widget);
        QVERIFY(!editor.getEditedObject());
    }
};

TAVRIK_TEST_MAIN(tst_TvkNodeEditor)
#include "tst_TvkNodeEditor.moc"
