#include "tests/support/CellEnds.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFVec2fWidget.h"

#include <memory>

/** What becomes of an open cell when something else happens. */
class tst_DvMFieldTableOpenCell : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void anOutsideValueShowsInAnOpenCellThatNobodyTypesInto()
    {
        DvMFVec2fWidget vectors;
        DvMFInt32Widget integers;
        const TableRig lines(vectors, "mfVec2f");
        lines.openCell(1, 0);
        lines.field->set1(1, "9 9");
        TableRig::runSensors();
        QCOMPARE(lines.openLine()->text(), QStringLiteral("9"));
        const TableRig sliders(integers, "mfInt32");
        sliders.openCell(1, 0);
        sliders.field->set1(1, "9");
        TableRig::runSensors();
        QCOMPARE(sliders.openLine()->text(), QStringLiteral("9"));
    }

    void anOutsideValueLeavesATypedTextAlone()
    {
        DvMFVec2fWidget vectors;
        DvMFInt32Widget integers;
        const TableRig lines(vectors, "mfVec2f");
        lines.type(1, 0, "5");
        lines.field->set1(1, "9 9");
        TableRig::runSensors();
        QCOMPARE(lines.openLine()->text(), QStringLiteral("5"));
        endWith(lines, Return);
        QCOMPARE(lines.rows().at(1), QByteArray("5 9"));
        const TableRig sliders(integers, "mfInt32");
        sliders.type(1, 0, "5");
        sliders.field->set1(1, "9");
        TableRig::runSensors();
        QCOMPARE(sliders.openLine()->text(), QStringLiteral("5"));
    }

    void anAppendedRowLeavesAnOpenCellOpen()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.type(1, 0, "5");
        rig.field->set1(3, "7 8");
        TableRig::runSensors();
        QVERIFY(rig.openLine());
        QCOMPARE(rig.openLine()->text(), QStringLiteral("5"));
        QCOMPARE(rig.host.services.count(), 0);
        QCOMPARE(rig.table().rowCount(), 4);
        endWith(rig, Return);
        QCOMPARE(rig.rows().at(1), QByteArray("5 4"));
    }

    void aCellWhoseRowIsTakenAwayIsClosed()
    {
        DvMFVec2fWidget vectors;
        DvMFInt32Widget integers;
        const TableRig lines(vectors, "mfVec2f");
        const TableRig sliders(integers, "mfInt32");
        for (const TableRig* rig : {&lines, &sliders}) {
            QApplication::setActiveWindow(const_cast<QWidget*>(&rig->window));
            rig->type(2, 0, "5");
            rig->field->setNum(1);
            TableRig::runSensors();
            TableRig::settle();
            QVERIFY(!rig->table().delegate().openEditor());
            QCOMPARE(rig->rows().size(), 1);
            QCOMPARE(rig->host.services.count(), 0);
            QVERIFY(rig->openCell(0, 0));
        }
    }

    void anEditOfRowsCommitsTheOpenCellFirst()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.type(1, 0, "5");
        rig.click("m_addButton");
        QCOMPARE(rig.rows().size(), 4);
        QCOMPARE(rig.rows().at(1), QByteArray("5 4"));
        QCOMPARE(rig.host.services.count(), 2);
        rig.type(0, 0, "6");
        rig.click("m_deleteButton");
        QCOMPARE(rig.rows().size(), 3);
        QCOMPARE(rig.host.services.count(), 4);
    }

    void aFieldThatBecomesConnectedClosesItsCell()
    {
        DvMFVec2fWidget vectors;
        const TableRig rig(vectors, "mfVec2f");
        auto* const master = new SoEveryField;
        master->ref();
        master->mfVec2f.set("[8 9]");
        rig.type(1, 0, "5");
        rig.field->connectFrom(&master->mfVec2f);
        TableRig::runSensors();
        TableRig::settle();
        QVERIFY(!rig.table().delegate().openEditor());
        QCOMPARE(rig.rows(), QList<QByteArray>{"8 9"});
        QCOMPARE(rig.host.services.count(), 0);
        QVERIFY(!rig.openCell(0, 0));
        rig.field->disconnect();
        master->unref();
    }

    void aTableThatGoesCommitsNothing()
    {
        for (const char* fieldName : {"mfVec2f", "mfInt32"}) {
            RecordingHost host;
            auto* const node = new SoEveryField;
            node->ref();
            QWidget window;
            std::unique_ptr<DvMFieldWidget> editor;
            if (qstrcmp(fieldName, "mfVec2f") == 0)
                editor = std::make_unique<DvMFVec2fWidget>();
            else
                editor = std::make_unique<DvMFInt32Widget>();
            editor->createWidgets();
            QVBoxLayout layout(&window);
            layout.addWidget(editor->getWidget());
            window.show();
            QApplication::setActiveWindow(&window);
            SoTypedObject object(node->getField(fieldName));
            editor->setEditedObject(&object);
            editor->activate();
            DvMFieldTable& table = editor->table();
            table.editItem(table.item(1, 0));
            QTest::keyClicks(QApplication::focusWidget(), "5");
            editor.reset();
            QCOMPARE(host.services.count(), 0);
            node->unref();
        }
    }

    void aDeadFieldGetsNothingFromItsOpenCell()
    {
        DvMFVec2fWidget vectors;
        DvMFInt32Widget integers;
        TableRig lines(vectors, "mfVec2f");
        TableRig sliders(integers, "mfInt32");
        for (TableRig* rig : {&lines, &sliders}) {
            const char* const fieldName = rig == &lines ? "mfVec2f" : "mfInt32";
            QApplication::setActiveWindow(&rig->window);
            rig->type(1, 0, "5");
            rig->killNode();
            TableRig::settle();
            QVERIFY(!rig->table().delegate().openEditor());
            QCOMPARE(rig->table().rowCount(), 0);
            QCOMPARE(rig->host.services.count(), 0);
            rig->reviveNode(fieldName);
            QVERIFY(rig->openCell(1, 0));
            rig->leave();
        }
    }

    void settingTheDefaultDropsAnOpenEdit()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.type(1, 0, "5");
        rig.click("m_defaultButton");
        TableRig::runSensors();
        TableRig::settle();
        QCOMPARE(rig.rows(), (QList<QByteArray>{"1 2", "3 4", "5 6"}));
        QCOMPARE(rig.host.services.count(), 1);
        QVERIFY(rig.openCell(1, 0));
    }

    void aSliderThatStillHasTheFocusGoesOn()
    {
        DvMFInt32Widget editor;
        const TableRig rig(editor, "mfInt32");
        QWidget* const opened = rig.openCell(1, 0);
        const auto notify = [&rig](QObject* editorGone) {
            QMetaObject::invokeMethod(&rig.table(), "editorDestroyed", Q_ARG(QObject*, editorGone));
        };
        notify(nullptr);
        notify(opened);
        QCOMPARE(rig.table().delegate().openEditor(), opened);
        QVERIFY(opened->isVisible());
        endWith(rig, Return);
        QVERIFY(!rig.table().delegate().openEditor());
    }
};

TAVRIK_TEST_MAIN(tst_DvMFieldTableOpenCell)
#include "tst_DvMFieldTableOpenCell.moc"
