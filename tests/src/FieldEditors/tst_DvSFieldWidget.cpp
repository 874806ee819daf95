#include "tests/support/EditorRig.h"
#include "tests/support/SlotOrder.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFVec3fWidget.h"

#include <Inventor/nodes/SoCone.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

/** An editor without a type of its own: the base as it is. */
class PlainEditor : public DvSFieldWidget
{
public:
    using DvSFieldWidget::DvSFieldWidget;
    using DvSFieldWidget::frame;
    using DvSFieldWidget::slider;
    void setType(SoType type) { m_handledType = type; }
};

/** A type that gives its label a text before the base builds the widgets. */
class LabelledEditor : public DvSFieldWidget
{
public:
    void createWidgets() override
    {
        label()->setText(QStringLiteral("own text"));
        DvSFieldWidget::createWidgets();
    }
};

/** A type that has a slider and passes its text on as the other types do theirs. */
class CopyingEditor : public DvSFieldWidget
{
public:
    CopyingEditor() : DvSFieldWidget(DvSlider::FloatKind) {}
    using DvSFieldWidget::applyChanges;
    using DvSFieldWidget::slider;

    void applyChanges() override
    {
        fieldAs<SoSFFloat>()->setValue(9.0F);
        pushSetValue();
    }
};

class tst_DvSFieldWidget : public QObject
{
    Q_OBJECT

private:
    static QPushButton* ignoreButton(const EditorRig& rig)
    {
        return rig.find<QPushButton>("m_ignoreButton");
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void tellsWhoItIs()
    {
        PlainEditor editor;
        QCOMPARE(editor.objectName(), QStringLiteral("DvSFieldWidget"));
        QCOMPARE(editor.getVendor().getString(), "Quelvar");
        QCOMPARE(editor.getDescription().getString(), "Field Editor for Tavrik.");
        QCOMPARE(editor.getVersion().getString(), "1.0.0");
        QVERIFY(qobject_cast<QFrame*>(editor.getWidget()));
        QVERIFY(!editor.getWidget()->parent());
    }

    void buildsTheWidgetsThatTheTypesFill()
    {
        PlainEditor editor;
        editor.createWidgets();
        QWidget* const frame = editor.getWidget();
        QCOMPARE(frame->layout()->objectName(), QStringLiteral("SFieldLayout"));
        QCOMPARE(frame->layout()->contentsMargins(), QMargins(4, 4, 4, 4));
        QCOMPARE(frame->layout()->spacing(), 6);
        QCOMPARE(frame->layout()->sizeConstraint(), QLayout::SetMinimumSize);
        QVERIFY(frame->findChild<QLayout*>("SFieldEditionAreaLayout"));
        auto* const edition = frame->findChild<QFrame*>("m_editionFrame");
        QCOMPARE(edition->layout()->objectName(), QStringLiteral("editLayout"));
        QCOMPARE(edition->frameShape(), QFrame::Box);
        QCOMPARE(edition->frameShadow(), QFrame::Plain);
        QCOMPARE(edition->lineWidth(), 0);
        QVERIFY(!frame->isVisible());
    }

    void keepsTheSameNameForTheButtonLayoutAsForItsParent()
    {
        PlainEditor editor;
        editor.createWidgets();
        // findChildren() finds the layouts below the frame, its own and the buttons'.
        QCOMPARE(editor.getWidget()->findChildren<QLayout*>("SFieldLayout").size(), 2);
    }

    void theLabelShowsTheTypeInSmallPrint()
    {
        PlainEditor editor;
        editor.setType(SoSFFloat::getClassTypeId());
        editor.createWidgets();
        auto* const label = editor.getWidget()->findChild<QLabel*>("m_label");
        QCOMPARE(label->text(), QStringLiteral("<p align=\"center\">SFFloat</p>"));
        QCOMPARE(label->font().pointSize(), 10);
    }

    void theLabelIsAPlainBoxInTheFirstPlaceBeforeASpacer()
    {
        PlainEditor editor;
        editor.createWidgets();
        auto* const label = editor.getWidget()->findChild<QLabel*>("m_label");
        QCOMPARE(label->parentWidget(), editor.getWidget());
        QCOMPARE(label->frameShape(), QFrame::Box);
        QCOMPARE(label->frameShadow(), QFrame::Plain);
        QCOMPARE(label->lineWidth(), 0);
        QVERIFY(label->hasScaledContents());
        QCOMPARE(editor.getWidget()->layout()->itemAt(0)->widget(), label);
        QVERIFY(editor.getWidget()->layout()->itemAt(1)->spacerItem());
    }

    void theLayoutsHaveTheirConstants()
    {
        PlainEditor editor;
        editor.createWidgets();
        QWidget* const frame = editor.getWidget();
        const auto* const area = frame->findChild<QLayout*>("SFieldEditionAreaLayout");
        QCOMPARE(area->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(area->spacing(), 2);
        const QLayout* const edit = frame->findChild<QFrame*>("m_editionFrame")->layout();
        QCOMPARE(edit->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(edit->spacing(), 0);
        const QLayout* const buttons = frame->layout()->itemAt(3)->layout();
        QCOMPARE(buttons->objectName(), QStringLiteral("SFieldLayout"));
        QCOMPARE(buttons->contentsMargins(), QMargins(2, 2, 2, 2));
        QCOMPARE(buttons->spacing(), 0);
    }

    void aSliderIsMadeForTheSixKindsOnly()
    {
        for (int kind = -1; kind <= 8; ++kind) {
            PlainEditor editor(kind);
            QCOMPARE(editor.slider() != nullptr, kind >= 1 && kind <= 6);
            if (editor.slider())
                QCOMPARE(editor.slider()->parentWidget(), editor.getWidget());
        }
    }

    void keepsTheSlidersTextWhereATypePassesACopyOfIt()
    {
        CopyingEditor editor;
        EditorRig rig(editor, "sfFloat");
        editor.slider()->oldValueText() = "4";
        editor.applyChanges();
        QCOMPARE(rig.text(), QStringLiteral("9"));
        QCOMPARE(editor.slider()->oldValueText().getString(), "4");
        rig.host.services.undo(0);
        QCOMPARE(rig.text(), QStringLiteral("4"));
    }

    void theLabelKeepsATextThatWasSetBefore()
    {
        LabelledEditor editor;
        editor.createWidgets();
        QCOMPARE(editor.getWidget()->findChild<QLabel*>("m_label")->text(),
                 QStringLiteral("own text"));
    }

    void theButtonsAreSmallWithoutTextAndTakeNoFocus()
    {
        PlainEditor editor;
        editor.createWidgets();
        const std::pair<const char*, const char*> expected[] = {
            {"m_defaultButton", "Set to default"}, {"m_ignoreButton", "Ignore this field"}};
        for (const auto& [name, toolTip] : expected) {
            auto* const button = editor.getWidget()->findChild<QPushButton*>(name);
            QCOMPARE(button->maximumSize(), QSize(20, 20));
            QCOMPARE(button->icon().availableSizes(), QList<QSize>{QSize(16, 16)});
            QCOMPARE(button->text(), QString());
            QCOMPARE(button->toolTip(), QString::fromLatin1(toolTip));
            QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        }
        QVERIFY(!editor.getWidget()->findChild<QPushButton*>("m_defaultButton")->isCheckable());
        QVERIFY(editor.getWidget()->findChild<QPushButton*>("m_ignoreButton")->isCheckable());
    }

    void aChangeOfLanguageRenewsTheToolTips()
    {
        PlainEditor editor;
        editor.createWidgets();
        auto* const button = editor.getWidget()->findChild<QPushButton*>("m_defaultButton");
        button->setToolTip(QStringLiteral("old"));
        button->setText(QStringLiteral("old"));
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(editor.getWidget(), &event);
        QCOMPARE(button->toolTip(), QStringLiteral("Set to default"));
        QCOMPARE(button->text(), QString());
    }

    void theOperationsStandInTheOrderThatCallersRelyOn()
    {
        const int refresh = slotOf(&TvkFieldEditors::refresh);
        QCOMPARE(slotOf(&TvkFieldEditors::setField), refresh - 1);
        QCOMPARE(slotOf(&TvkEditor::getWidget), refresh - 2);
        // Between refresh() and applyChanges() stand the five that a type fills in, the fourth of
        // them with the text.
        const int apply =
            slotOf(static_cast<void (DvSFieldWidget::*)()>(&DvSFieldWidget::applyChanges));
        QCOMPARE(slotOf(static_cast<void (DvSFieldWidget::*)(const QString&)>(
                     &DvSFieldWidget::applyChanges)),
                 refresh + 4);
        QCOMPARE(apply, refresh + 6);
        QCOMPARE(slotOf(&DvSFieldWidget::hasPendingEdit), apply + 1);
        QCOMPARE(slotOf(&DvSFieldWidget::languageChange), apply + 2);
        QCOMPARE(slotOf(&DvSFieldWidget::setCommandValue), apply + 3);
        QCOMPARE(slotOf(&DvSFieldWidget::setDefaultFieldValue), apply + 4);
    }

    void activatingShowsTheFieldAndAttachesToIt()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        QVERIFY(editor.isShown());
        QVERIFY(editor.getWidget()->isVisible());
        rig.node->sfVec3f.setValue(7.0F, 8.0F, 9.0F);
        EditorRig::runSensors();
        QCOMPARE(rig.find<QLineEdit>("SFVec3fLine", 0)->text(), QStringLiteral("7"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void activatingWithoutAFieldDoesNothing()
    {
        DvSFVec3fWidget editor;
        editor.createWidgets();
        editor.activate();
        QVERIFY(!editor.isShown());
        auto* const cone = new SoCone;
        cone->ref();
        SoTypedObject node(static_cast<SoFieldContainer*>(cone));
        editor.setEditedObject(&node);
        editor.activate();
        QVERIFY(!editor.isShown());
        cone->unref();
    }

    void togglingIgnoreTwiceMakesTwoCommandsAndFollowsTheButton()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        QTest::mouseClick(ignoreButton(rig), Qt::LeftButton);
        QVERIFY(rig.field->isIgnored());
        QTest::mouseClick(ignoreButton(rig), Qt::LeftButton);
        QVERIFY(!rig.field->isIgnored());
        QVERIFY(!ignoreButton(rig)->isChecked());
        QCOMPARE(rig.host.services.count(), 2);
        rig.host.services.undo(1);
        QVERIFY(rig.field->isIgnored());
        EditorRig::runSensors();
        QVERIFY(ignoreButton(rig)->isChecked());
    }

    void pressingTheIgnoreButtonAndDraggingOffChangesNothing()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        QPushButton* const button = ignoreButton(rig);
        QTest::mousePress(button, Qt::LeftButton);
        QTest::mouseMove(button, QPoint(200, 200));
        QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(200, 200));
        QVERIFY(!rig.field->isIgnored());
        QCOMPARE(rig.host.services.count(), 0);
    }

    void anIgnoreFlagSetFromOutsideIsShown()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        rig.field->setIgnored(TRUE);
        EditorRig::runSensors();
        QVERIFY(ignoreButton(rig)->isChecked());
        QCOMPARE(rig.host.services.count(), 0);
    }

    void theDefaultButtonSetsTheDefaultOnce()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        rig.node->sfVec3f.setValue(7.0F, 8.0F, 9.0F);
        QTest::mouseClick(rig.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        QCOMPARE(rig.text(), QStringLiteral("1 2 3"));
        QVERIFY(rig.field->isDefault());
        QCOMPARE(rig.host.services.count(), 1);
    }

    void keepsTheDefaultWhenSetToDefaultIsUndone()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        rig.node->sfVec3f.setValue(7.0F, 8.0F, 9.0F);
        QTest::mouseClick(rig.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        rig.host.services.undo(0);
        QCOMPARE(rig.text(), QStringLiteral("1 2 3"));
    }

    void theDefaultButtonDropsWhatIsBeingTyped()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        EditorRig::type(rig.find<QLineEdit>("SFVec3fLine", 0), "55");
        QTest::mouseClick(rig.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        EditorRig::runSensors();
        rig.leave();
        QCOMPARE(rig.text(), QStringLiteral("1 2 3"));
        QCOMPARE(rig.find<QLineEdit>("SFVec3fLine", 0)->text(), QStringLiteral("1"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void aPendingEditIsCommittedWhenTheEditorIsDeactivated()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        EditorRig::type(rig.find<QLineEdit>("SFVec3fLine", 2), "33");
        editor.deactivate();
        QCOMPARE(rig.text(), QStringLiteral("1 2 33"));
        QCOMPARE(rig.host.services.count(), 1);
        editor.deactivate();
        QCOMPARE(rig.host.services.count(), 1);
    }

    void aHalfTypedNumberIsRevertedWhenTheEditorIsDeactivatedInFocus()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        auto* const line = rig.find<QLineEdit>("SFVec3fLine", 2);
        EditorRig::type(line, "-");
        rig.other->setEnabled(false);
        editor.deactivate();
        QCOMPARE(rig.text(), QStringLiteral("1 2 3"));
        QCOMPARE(line->text(), QStringLiteral("3"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void releasingTheWidgetsOfAnActiveEditorLetsGoOfTheField()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        editor.releaseWidgets();
        rig.killNode();
        editor.refresh();
        editor.applyChanges();
        editor.deactivate();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void activatingWithoutWidgetsDoesNothing()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        editor.deactivate();
        editor.releaseWidgets();
        rig.edit();
        QVERIFY(!editor.isShown());
        QVERIFY(!editor.getWidget()->isEnabled());
        DvSFVec3fWidget neverBuilt;
        SoTypedObject object(rig.field);
        neverBuilt.setEditedObject(&object);
        neverBuilt.activate();
        QVERIFY(!neverBuilt.isShown());
    }

    void theDeathOfTheContainerLetsGoOfTheField()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        EditorRig::type(rig.find<QLineEdit>("SFVec3fLine", 2), "33");
        rig.killNode();
        QVERIFY(!editor.getEditedObject());
        QVERIFY(!editor.getWidget()->isEnabled());
        QTest::keyClick(rig.find<QLineEdit>("SFVec3fLine", 2), Qt::Key_Return);
        editor.applyChanges();
        editor.refresh();
        editor.setDefaultFieldValue();
        editor.ignoreButtonStateChanged();
        editor.deactivate();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void anotherFieldMakesTheEditorUsableAgainAfterADeath()
    {
        DvSFVec3fWidget editor;
        EditorRig rig(editor, "sfVec3f");
        rig.killNode();
        rig.node = new SoEveryField;
        rig.node->ref();
        rig.field = &rig.node->sfVec3f;
        rig.edit();
        QVERIFY(editor.getWidget()->isEnabled());
        EditorRig::type(rig.find<QLineEdit>("SFVec3fLine", 0), "4");
        QTest::keyClick(rig.find<QLineEdit>("SFVec3fLine", 0), Qt::Key_Return);
        QCOMPARE(rig.text(), QStringLiteral("4 2 3"));
    }

    void destroyingTheEditorWithAnEditedFocusedLineCommitsNothing()
    {
        auto editor = std::make_unique<DvSFVec3fWidget>();
        RecordingHost host;
        auto* const node = new SoEveryField;
        node->ref();
        editor->createWidgets();
        SoTypedObject object(&node->sfVec3f);
        editor->setEditedObject(&object);
        editor->activate();
        QApplication::setActiveWindow(editor->getWidget());
        auto* const line = editor->getWidget()->findChild<QLineEdit*>("SFVec3fLine");
        EditorRig::type(line, "5");
        QVERIFY(line->hasFocus());
        editor.reset();
        QCOMPARE(host.services.count(), 0);
        node->unref();
    }

    void toleratesEveryEndWithoutItsBeginning()
    {
        DvSFVec3fWidget editor;
        editor.deactivate();
        editor.releaseWidgets();
        editor.createWidgets();
        editor.deactivate();
        editor.releaseWidgets();
        editor.releaseWidgets();
        editor.deactivate();
        QVERIFY(!editor.isActive());
    }

    void theWidgetTreeIsBuiltOnceOnly()
    {
        DvSFVec3fWidget editor;
        editor.createWidgets();
        editor.releaseWidgets();
        editor.createWidgets();
        QCOMPARE(editor.getWidget()->findChildren<QLineEdit*>("SFVec3fLine").size(), 3);
    }

    void surviveTheDeletionOfTheFrameByADock()
    {
        DvSFVec3fWidget editor;
        editor.createWidgets();
        delete editor.getWidget();
        QVERIFY(!editor.getWidget());
        editor.hide();
        editor.deactivate();
    }
};

TAVRIK_TEST_MAIN(tst_DvSFieldWidget)
#include "tst_DvSFieldWidget.moc"
