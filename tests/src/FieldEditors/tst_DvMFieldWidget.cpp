#include "tests/support/SlotOrder.h"
#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/AccessButtonPrivate.h"
#include "FieldEditors/MFWidgets/DvMFDefaultFieldWidget.h"
#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFMatrixWidget.h"
#include "FieldEditors/MFWidgets/DvMFPlaneWidget.h"
#include "FieldEditors/MFWidgets/DvMFStringWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec2fWidget.h"

#include <Inventor/engines/SoCompose.h>

#include <QDockWidget>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QToolTip>

/** An editor without a type of its own: the base as it is. */
class PlainTable : public DvMFieldWidget
{
public:
    PlainTable() : DvMFieldWidget({"MField", {"Value"}, 0}) {}
    QString cellText(int, int) const override { return {}; }
    void applyCell(int, int, const QString&) override {}
    void swapRows(int, int) override {}
};

#include <memory>

class tst_DvMFieldWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void everyPartHasItsName()
    {
        DvMFVec2fWidget editor;
        editor.createWidgets();
        const QWidget* const frame = editor.getWidget();
        QCOMPARE(editor.objectName(), QStringLiteral("DvMFVec2fWidget"));
        QVERIFY(frame->findChild<DvMFieldTable*>("m_table"));
        QVERIFY(frame->findChild<QSpinBox*>("m_accessBox"));
        for (const char* label : {"m_label", "m_labelNumElement"})
            QVERIFY2(frame->findChild<QLabel*>(label), label);
        for (const char* button : {"m_addButton", "m_deleteButton", "m_upButton", "m_downButton",
                                   "m_defaultButton", "m_ignoreButton"})
            QVERIFY2(frame->findChild<QPushButton*>(button), button);
        QCOMPARE(frame->layout()->objectName(), QStringLiteral("m_globalLayout"));
        for (const char* layout :
             {"m_buttonsLayout", "m_manageButtonsLayout", "movementButtonLayout"})
            QVERIFY2(frame->findChild<QLayout*>(layout), layout);
    }

    void theBaseHasItsOwnNameWithoutAnother()
    {
        QCOMPARE(PlainTable().objectName(), QStringLiteral("DvMFieldWidget"));
    }

    void theButtonsSayWhatTheyDo()
    {
        DvMFVec2fWidget editor;
        editor.createWidgets();
        const std::pair<const char*, const char*> expected[] = {
            {"m_upButton", "Bring up current row"},   {"m_downButton", "Bring down current row"},
            {"m_deleteButton", "Delete current row"}, {"m_addButton", "Add a row"},
            {"m_defaultButton", "Set to default"},    {"m_ignoreButton", "Ignore this field"}};
        for (const auto& [name, toolTip] : expected) {
            const auto* const button = editor.getWidget()->findChild<QPushButton*>(name);
            QCOMPARE(button->toolTip(), QString::fromLatin1(toolTip));
            QCOMPARE(button->accessibleName(), button->toolTip());
            QCOMPARE(button->text(), QString());
            QVERIFY(!button->icon().isNull());
            QCOMPARE(button->maximumSize(), QSize(20, 20));
            QCOMPARE(button->focusPolicy(), Qt::NoFocus);
        }
        QCOMPARE(editor.accessBox().toolTip(), QStringLiteral("Quick access to rows"));
        QVERIFY(editor.accessBox().minimumWidth() >= 60);
    }

    void theLayoutsHaveTheirConstants()
    {
        DvMFVec2fWidget editor;
        editor.createWidgets();
        const QWidget* const frame = editor.getWidget();
        QCOMPARE(frame->layout()->contentsMargins(), QMargins(6, 6, 6, 6));
        QCOMPARE(frame->layout()->spacing(), 2);
        const auto* const buttons = frame->findChild<QLayout*>("m_buttonsLayout");
        QCOMPARE(buttons->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(buttons->spacing(), 5);
        QCOMPARE(frame->findChild<QLayout*>("m_manageButtonsLayout")->spacing(), 0);
        QCOMPARE(editor.table().minimumHeight(), 46);
    }

    void theLabelAndTheHeadersSayTheType()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        QCOMPARE(rig.find<QLabel>("m_label")->text(),
                 QStringLiteral("<p align=\"center\">MFVec2f</p>"));
        QCOMPARE(rig.table().columnCount(), 2);
        QCOMPARE(rig.table().horizontalHeaderItem(0)->text(), QStringLiteral("x"));
        QCOMPARE(rig.table().horizontalHeaderItem(1)->text(), QStringLiteral("y"));
        QCOMPARE(rig.find<QLabel>("m_labelNumElement")->text(), QStringLiteral("of 3"));
    }

    void theLabelKeepsATextThatWasSetBefore()
    {
        class Labelled : public PlainTable
        {
        public:
            void createWidgets() override
            {
                label()->setText(QStringLiteral("own text"));
                PlainTable::createWidgets();
            }
        };
        Labelled editor;
        editor.createWidgets();
        QCOMPARE(editor.getWidget()->findChild<QLabel*>("m_label")->text(),
                 QStringLiteral("own text"));
    }

    void aHeaderThatIsAWordHasRoomInANarrowTable()
    {
        DvMFPlaneWidget editor;
        TableRig rig(editor, "mfPlane");
        rig.window.resize(280, 320);
        TableRig::settle();
        const QHeaderView& header = *rig.table().horizontalHeader();
        QVERIFY(header.sectionSize(3) > header.fontMetrics().horizontalAdvance(
                                            rig.table().horizontalHeaderItem(3)->text()));
        // The others share what is left.
        QCOMPARE(header.length(), rig.table().viewport()->width());
        QVERIFY(qAbs(header.sectionSize(0) - header.sectionSize(2)) <= 1);
        QVERIFY(header.sectionSize(0) > 0);
    }

    void theNumberOfRowsKeepsAwayFromTheSpinBox()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        QVERIFY(rig.find<QLabel>("m_labelNumElement")->indent() > 0);
    }

    void theOperationsOfATypeComeInTheirOrder()
    {
        const int slots_[] = {slotOf(&DvMFieldWidget::accept), slotOf(&DvMFieldWidget::buildTable),
                              slotOf(&DvMFieldWidget::cellText), slotOf(&DvMFieldWidget::applyCell),
                              slotOf(&DvMFieldWidget::swapRows)};
        for (std::size_t i = 1; i < std::size(slots_); ++i)
            QVERIFY(slots_[i] > slots_[i - 1]);
        QVERIFY(slotOf(&DvMFieldWidget::languageChange) > 0);
        QVERIFY(slotOf(&DvMFieldWidget::setDefaultFieldValue) > 0);
        QCOMPARE(slotOf(&DvMFieldWidget::ignoreButtonStateChanged), -1);
    }

    void anotherTypesFieldIsNotTaken()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        QVERIFY(editor.accept(rig.field));
        QVERIFY(!editor.accept(&rig.node->mfVec3f));
        QVERIFY(!editor.accept(nullptr));
        editor.setField(&rig.node->mfVec3f);
        QVERIFY(!editor.field());
        QCOMPARE(rig.table().rowCount(), 0);
    }

    void anotherFieldShowsItsRows()
    {
        DvMFVec2fWidget editor;
        TableRig rig(editor, "mfVec2f");
        auto* const another = new SoEveryField;
        another->ref();
        another->mfVec2f.set("[9 9]");
        rig.edit(another->mfVec2f);
        QCOMPARE(rig.shownRows(), QStringList{"9|9"});
        QCOMPARE(rig.accessBox().maximum(), 1);
        editor.deactivate();
        another->unref();
        rig.edit(rig.node->mfVec2f);
        QCOMPARE(rig.shownRows().size(), 3);
    }

    void goingOnToAnotherFieldCommitsTheOpenCell()
    {
        DvMFVec2fWidget editor;
        TableRig rig(editor, "mfVec2f");
        rig.type(1, 0, "5");
        editor.deactivate();
        QCOMPARE(rig.rows().at(1), QByteArray("5 4"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void withoutAFieldTheEditorIsEmptyAndDisabled()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        editor.deactivate();
        QVERIFY(!editor.getWidget()->isEnabled());
        QCOMPARE(rig.table().rowCount(), 0);
        QCOMPARE(rig.find<QLabel>("m_labelNumElement")->text(), QStringLiteral("of 0"));
        rig.click("m_addButton");
        rig.table().addRow();
        rig.table().deleteRow();
        editor.refresh();
        editor.setDefaultFieldValue();
        editor.ignoreButtonStateChanged();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void aFieldOfAnotherFieldIsReadOnlyAndSaysWhy()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        auto* const master = new SoEveryField;
        master->ref();
        master->mfVec2f.set("[7 8, 9 10]");
        rig.field->connectFrom(&master->mfVec2f);
        TableRig::runSensors();
        QCOMPARE(rig.shownRows(), (QStringList{"7|8", "9|10"}));
        QCOMPARE(
            rig.table().toolTip(),
            QStringLiteral("The values come from SoEveryField.mfVec2f and cannot be edited here"));
        for (const char* button :
             {"m_addButton", "m_deleteButton", "m_upButton", "m_downButton", "m_defaultButton"})
            QVERIFY2(!rig.find<QPushButton>(button)->isEnabled(), button);
        QVERIFY(!rig.openCell(0, 0));
        for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_5})
            QTest::keyClick(&rig.table(), key);
        rig.table().swapUpRow();
        rig.table().swapDownRow();
        QCOMPARE(rig.host.services.count(), 0);
        rig.accessBox().setValue(2);
        QCOMPARE(rig.table().currentRow(), 1);
        rig.field->disconnect();
        rig.field->touch();
        TableRig::runSensors();
        QVERIFY(rig.find<QPushButton>("m_addButton")->isEnabled());
        QCOMPARE(rig.table().toolTip(), QString());
        rig.enter(0, 0, "5");
        QCOMPARE(rig.rows().at(0), QByteArray("5 8"));
        master->unref();
    }

    void theReasonIsSeenWhereverTheMouseRests_data()
    {
        QTest::addColumn<bool>("onCell");
        QTest::newRow("on a cell") << true;
        QTest::newRow("below the rows") << false;
    }
    void theReasonIsSeenWhereverTheMouseRests()
    {
        QFETCH(bool, onCell);
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        auto* const master = new SoEveryField;
        master->ref();
        rig.field->connectFrom(&master->mfVec2f);
        TableRig::runSensors();
        QWidget& viewport = *rig.table().viewport();
        const QPoint place = onCell ? QPoint(5, 5) : viewport.rect().bottomLeft() + QPoint(5, -5);
        QCOMPARE(rig.table().indexAt(place).isValid(), onCell);
        QHelpEvent help(QEvent::ToolTip, place, viewport.mapToGlobal(place));
        QApplication::sendEvent(&viewport, &help);
        QCOMPARE(QToolTip::text(), rig.editor.readOnlyReason());
        QToolTip::hideText();
        master->unref();
    }

    void aConnectionTakenAwayInSilenceIsNoticedByWhoeverComes_data()
    {
        QTest::addColumn<bool>("byMouse");
        QTest::newRow("the mouse comes into the frame") << true;
        QTest::newRow("the keyboard comes into the table") << false;
    }
    void aConnectionTakenAwayInSilenceIsNoticedByWhoeverComes()
    {
        QFETCH(bool, byMouse);
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        auto* const master = new SoEveryField;
        master->ref();
        rig.field->connectFrom(&master->mfVec2f);
        TableRig::runSensors();
        rig.leave();
        rig.field->disconnect();
        TableRig::runSensors();
        QVERIFY(!rig.find<QPushButton>("m_addButton")->isEnabled());
        if (byMouse) {
            QEnterEvent event({}, {}, {});
            QApplication::sendEvent(editor.getWidget(), &event);
        } else {
            rig.table().setFocus();
        }
        QVERIFY(rig.find<QPushButton>("m_addButton")->isEnabled());
        QCOMPARE(rig.table().toolTip(), QString());
        master->unref();
    }

    void aFieldOfAFieldWithoutANodeIsShown()
    {
        DvMFInt32Widget numbers;
        DvMFMatrixWidget matrices;
        DvMFDefaultFieldWidget times;
        for (const auto& [editor, name] : {std::make_pair<DvMFieldWidget*>(&numbers, "mfInt32"),
                                           std::make_pair<DvMFieldWidget*>(&matrices, "mfMatrix"),
                                           std::make_pair<DvMFieldWidget*>(&times, "mfTime")}) {
            const TableRig rig(*editor, name);
            const std::unique_ptr<SoMField> master(
                static_cast<SoMField*>(rig.field->getTypeId().createInstance()));
            master->copyFrom(*rig.field);
            const QStringList before = rig.shownRows();
            rig.field->connectFrom(master.get());
            TableRig::runSensors();
            QCOMPARE(rig.shownRows(), before);
            QCOMPARE(rig.table().toolTip(),
                     QStringLiteral("The values come from elsewhere and cannot be edited here"));
            rig.table().viewport()->grab();
            master->touch();
            TableRig::runSensors();
            rig.field->disconnect();
        }
    }

    void aConnectedFieldIsNotSetToItsDefault()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        auto* const master = new SoEveryField;
        master->ref();
        master->mfVec2f.set("[7 8]");
        rig.field->connectFrom(&master->mfVec2f);
        editor.setDefaultFieldValue();
        QCOMPARE(rig.rows(), QList<QByteArray>{"7 8"});
        QCOMPARE(rig.host.services.count(), 0);
        rig.field->disconnect();
        master->unref();
    }

    void aFieldOfAConvertedFieldNamesItsMaster()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        rig.field->connectFrom(&rig.node->mfInt32);
        TableRig::runSensors();
        QCOMPARE(rig.shownRows(), (QStringList{"1", "2", "3"}));
        QVERIFY2(rig.table().toolTip().contains("EveryField.mfInt32"),
                 qPrintable(rig.table().toolTip()));
        rig.field->disconnect();
    }

    void aFieldOfAnEngineIsEvaluatedAndNamesIt()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        auto* const engine = new SoComposeVec2f;
        engine->ref();
        engine->x.setValue(7.0F);
        engine->y.setValue(8.0F);
        rig.field->connectFrom(&engine->vector);
        TableRig::runSensors();
        QCOMPARE(rig.shownRows(), QStringList{"7|8"});
        QVERIFY2(rig.table().toolTip().contains("engine ComposeVec2f"),
                 qPrintable(rig.table().toolTip()));
        engine->x.setValue(70.0F);
        TableRig::runSensors();
        QCOMPARE(rig.shownRows(), QStringList{"70|8"});
        rig.field->disconnect();
        engine->unref();
    }

    void theDefaultComesBackAsOneCommand()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.field->set("[9 9]");
        TableRig::runSensors();
        rig.click("m_defaultButton");
        TableRig::runSensors();
        QCOMPARE(rig.shownRows(), (QStringList{"1|2", "3|4", "5|6"}));
        QCOMPARE(rig.accessBox().maximum(), 3);
        QCOMPARE(rig.host.services.count(), 1);
    }

    void togglingIgnoreTwiceMakesTwoCommands()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.click("m_ignoreButton");
        QVERIFY(rig.field->isIgnored());
        rig.click("m_ignoreButton");
        QVERIFY(!rig.field->isIgnored());
        QCOMPARE(rig.host.services.count(), 2);
        rig.field->setIgnored(TRUE);
        TableRig::runSensors();
        QVERIFY(rig.find<QPushButton>("m_ignoreButton")->isChecked());
    }

    void aPressDraggedOffTheIgnoreButtonChangesNothing()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        auto* const button = rig.find<QPushButton>("m_ignoreButton");
        QTest::mousePress(button, Qt::LeftButton);
        QTest::mouseMove(button, QPoint(-50, -50));
        QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, QPoint(-50, -50));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void anotherLanguageSetsTheTextsAnew()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.find<QPushButton>("m_addButton")->setToolTip(QStringLiteral("old"));
        for (const char* button : {"m_defaultButton", "m_ignoreButton"})
            rig.find<QPushButton>(button)->setText(QStringLiteral("old"));
        rig.find<QLabel>("m_labelNumElement")->setText(QStringLiteral("old"));
        QEvent event(QEvent::LanguageChange);
        QApplication::sendEvent(editor.getWidget(), &event);
        for (const char* button : {"m_defaultButton", "m_ignoreButton"})
            QCOMPARE(rig.find<QPushButton>(button)->text(), QString());
        QCOMPARE(rig.find<QPushButton>("m_addButton")->toolTip(), QStringLiteral("Add a row"));
        QCOMPARE(rig.find<QLabel>("m_labelNumElement")->text(), QStringLiteral("of 3"));
    }

    void theEditorOutlivesItsField()
    {
        DvMFVec2fWidget editor;
        TableRig rig(editor, "mfVec2f");
        rig.table().setCurrentCell(2, 1);
        rig.killNode();
        QVERIFY(!editor.field());
        QVERIFY(!editor.getWidget()->isEnabled());
        QCOMPARE(rig.table().rowCount(), 0);
        rig.table().viewport()->grab();
        rig.reviveNode("mfVec2f");
        QVERIFY(editor.getWidget()->isEnabled());
        QCOMPARE(rig.shownRows().size(), 3);
    }

    void aFieldMayDieBeforeItsChangeIsShown()
    {
        DvMFVec2fWidget editor;
        TableRig rig(editor, "mfVec2f");
        rig.field->setNum(50);
        rig.killNode();
        TableRig::runSensors();
        QCOMPARE(rig.table().rowCount(), 0);
    }

    void aFieldMayDieWithinADragOfItsSlider()
    {
        DvMFInt32Widget editor;
        TableRig rig(editor, "mfInt32");
        rig.openCell(1, 0);
        QPointer<QSlider> thumb = rig.table().delegate().openEditor()->findChild<QSlider*>();
        thumb->setSliderDown(true);
        thumb->setSliderPosition(5);
        const int count = rig.host.services.count();
        rig.killNode();
        if (thumb)
            thumb->setSliderDown(false);
        TableRig::settle();
        QCOMPARE(rig.host.services.count(), count);
    }

    void aFrameThatADockHasDeletedIsMissedQuietly()
    {
        RecordingHost host;
        auto* const node = new SoEveryField;
        node->ref();
        DvMFVec2fWidget editor;
        editor.createWidgets();
        SoTypedObject object(&node->mfVec2f);
        editor.setEditedObject(&object);
        {
            QDockWidget dock;
            dock.setWidget(editor.getWidget());
            dock.show();
            editor.activate();
            editor.table().editItem(editor.table().item(1, 0));
        }
        node->mfVec2f.set("[9 9]");
        TableRig::runSensors();
        editor.refresh();
        editor.languageChange();
        editor.setField(&node->mfVec2f);
        editor.deactivate();
        editor.releaseWidgets();
        QVERIFY(!editor.getWidget());
        node->unref();
    }

    void widgetsAreMadeOnce()
    {
        DvMFVec2fWidget editor;
        editor.createWidgets();
        const DvMFieldTable* const table = &editor.table();
        editor.createWidgets();
        QCOMPARE(&editor.table(), table);
        QCOMPARE(editor.getWidget()->findChildren<QPushButton*>("m_addButton").size(), 1);
    }
};

TAVRIK_TEST_MAIN(tst_DvMFieldWidget)
#include "tst_DvMFieldWidget.moc"
