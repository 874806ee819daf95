#include "tests/support/EditorDockRig.h"
#include "tests/support/RecordingEditor.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFLineWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec3fWidget.h"
#include "FieldEditors/TvkFieldEditorDockWin.h"

#include <Inventor/nodes/SoTranslation.h>

class tst_TvkFieldEditorDockWin : public QObject
{
    Q_OBJECT

private:
    /** The dock, and a node whose fields are selected. */
    struct Rig : EditorDockRig<TvkFieldEditorDockWin>
    {
        Rig() { node->ref(); }
        ~Rig()
        {
            dock.deactivate();
            node->unref();
        }
        Rig(const Rig&) = delete;
        Rig& operator=(const Rig&) = delete;

        SoTranslation* node = new SoTranslation;
    };

    static SoType vec3f() { return SoSFVec3f::getClassTypeId(); }
    static SoType single() { return SoSField::getClassTypeId(); }

private slots:
    void tellsWhoItIs()
    {
        TvkFieldEditorDockWin dock;
        QCOMPARE(dock.getName().getString(), "Field Editor");
        QCOMPARE(dock.getDescription().getString(), "Field Editor for Tavrik.");
        QCOMPARE(dock.getVendor().getString(), "Quelvar");
        QCOMPARE(dock.getVersion().getString(), "1.0.0");
    }

    void theDockIsBuiltHiddenTitledAndRefusesDrops()
    {
        Rig rig;
        QVERIFY(rig.window);
        QCOMPARE(rig.window->windowTitle(), QStringLiteral("Field Editor"));
        QVERIFY(!rig.window->acceptDrops());
        QVERIFY(rig.window->isHidden());
    }

    void activationDocksOnTheRightAndRegisters()
    {
        Rig rig;
        QCOMPARE(rig.host.shell.calls, QStringList({"addDockWidget \"Field Editor\" 2",
                                                    "registerExtension \"Field Editor\" true"}));
    }

    void deactivationUndocksUnregistersAndStopsListening()
    {
        Rig rig;
        RecordingEditor editor("editor", vec3f(), rig.log);
        rig.setting.control(&editor);
        rig.host.services.selectField(&rig.node->translation);
        rig.host.shell.calls.clear();
        rig.dock.deactivate();
        QCOMPARE(rig.host.shell.calls, QStringList({"removeDockWidget \"Field Editor\"",
                                                    "unregisterExtension \"Field Editor\""}));
        rig.log.clear();
        rig.host.services.selectField(&rig.node->translation);
        QVERIFY(rig.log.isEmpty());
        rig.host.shell.calls.clear();
        rig.dock.deactivate();
        QVERIFY(rig.host.shell.calls.isEmpty());
    }

    void selectingAFieldGivesItToItsEditorAndShowsTheDock()
    {
        Rig rig;
        RecordingEditor editor("editor", vec3f(), rig.log);
        rig.setting.control(&editor);
        rig.host.services.selectField(&rig.node->translation);
        QCOMPARE(rig.log, QStringList({"editor setEditedObject SFVec3f", "editor activate"}));
        QVERIFY(!rig.window->isHidden());
        QCOMPARE(rig.window->widget(), editor.getWidget());
    }

    void selectingNoFieldReleasesTheEditorAndHidesTheDock()
    {
        Rig rig;
        RecordingEditor editor("editor", vec3f(), rig.log);
        rig.setting.control(&editor);
        rig.host.services.selectField(&rig.node->translation);
        rig.log.clear();
        rig.host.services.selectField(nullptr);
        QCOMPARE(rig.log, QStringList({"editor deactivate", "editor setEditedObject null"}));
        QVERIFY(rig.window->isHidden());
        QVERIFY(!editor.getEditedObject());
        QVERIFY(!editor.getWidget()->parent());
        QVERIFY(!rig.window->widget());
    }

    void aFieldThatNoEditorHandlesLeavesTheDockHidden()
    {
        Rig rig;
        RecordingEditor editor("editor", SoSFFloat::getClassTypeId(), rig.log);
        rig.setting.control(&editor);
        rig.host.services.selectField(&rig.node->translation);
        QVERIFY(rig.log.isEmpty());
        QVERIFY(rig.window->isHidden());
    }

    void theEditorOfTheMostDerivedTypeIsChosenWhateverTheOrder()
    {
        for (const bool derivedFirst : {false, true}) {
            Rig rig;
            RecordingEditor lower("a", derivedFirst ? vec3f() : single(), rig.log);
            RecordingEditor upper("b", derivedFirst ? single() : vec3f(), rig.log);
            rig.setting.control(&lower);
            rig.setting.control(&upper);
            rig.host.services.selectField(&rig.node->translation);
            TvkEditor& expected = lower.getHandledType() == vec3f() ? lower : upper;
            QCOMPARE(rig.window->widget(), expected.getWidget());
        }
    }

    void keepsTheLaterOfTwoEditorsForTheSameType()
    {
        Rig rig;
        RecordingEditor one("one", vec3f(), rig.log);
        RecordingEditor two("two", vec3f(), rig.log);
        rig.setting.control(&one);
        rig.setting.control(&two);
        rig.host.services.selectField(&rig.node->translation);
        TvkEditor* const later = std::less<TvkEditor*>()(&one, &two) ? &two : &one;
        QCOMPARE(rig.window->widget(), later->getWidget());
    }

    void reselectingTheSameFieldRunsTheWholeCycleAgain()
    {
        Rig rig;
        RecordingEditor editor("editor", vec3f(), rig.log);
        rig.setting.control(&editor);
        rig.host.services.selectField(&rig.node->translation);
        rig.log.clear();
        rig.host.services.selectField(&rig.node->translation);
        QCOMPARE(rig.log, QStringList({"editor deactivate", "editor setEditedObject null",
                                       "editor setEditedObject SFVec3f", "editor activate"}));
        QVERIFY(!rig.window->isHidden());
    }

    void extensionsThatAreNoEditorsAreSkipped()
    {
        Rig rig;
        TvkFieldEditorDockWin noEditor;
        RecordingEditor editor("editor", vec3f(), rig.log);
        rig.setting.control(&noEditor);
        rig.setting.control(&editor);
        rig.host.services.selectField(&rig.node->translation);
        QCOMPARE(rig.window->widget(), editor.getWidget());
    }

    void releasingTheWidgetsWhileAnEditorIsShownLeavesTheEditorItsOwn()
    {
        Rig rig;
        RecordingEditor editor("editor", vec3f(), rig.log);
        rig.setting.control(&editor);
        rig.host.services.selectField(&rig.node->translation);
        const QPointer<QWidget> widget = editor.getWidget();
        rig.dock.releaseWidgets();
        QVERIFY(!rig.window);
        QVERIFY(widget);
        QVERIFY(!editor.getEditedObject());
        rig.dock.releaseWidgets();
    }

    void anEditorThatIsDestroyedWhileShownIsForgotten()
    {
        Rig rig;
        auto editor = std::make_unique<RecordingEditor>("editor", vec3f(), rig.log);
        rig.setting.control(editor.get());
        rig.host.services.selectField(&rig.node->translation);
        rig.setting.release(editor.get());
        editor.reset();
        rig.host.services.selectField(nullptr);
        QVERIFY(!rig.window->widget());
    }

    void withoutASettingNothingIsShown()
    {
        Rig rig;
        rig.dock.setProfileSetting(nullptr);
        rig.host.services.selectField(&rig.node->translation);
        QVERIFY(rig.window->isHidden());
    }

    void realEditorsAreChosenAndFallBack()
    {
        Rig rig;
        DvSFLineWidget line;
        DvSFVec3fWidget vector;
        for (DvSFieldWidget* editor :
             {static_cast<DvSFieldWidget*>(&line), static_cast<DvSFieldWidget*>(&vector)}) {
            editor->createWidgets();
            rig.setting.control(editor);
        }
        rig.host.services.selectField(&rig.node->translation);
        QCOMPARE(rig.window->widget(), vector.getWidget());
        SoSFVec3d another;
        rig.host.services.selectField(&another);
        QCOMPARE(rig.window->widget(), line.getWidget());
        rig.host.services.selectField(nullptr);
    }
};

TAVRIK_TEST_MAIN(tst_TvkFieldEditorDockWin)
#include "tst_TvkFieldEditorDockWin.moc"
