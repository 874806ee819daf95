#include "tests/contracts/TableEditors.h"
#include "tests/support/TestMain.h"

/** What becomes of something begun in any multiple-value editor when something else happens. */
class tst_MultipleValueLifeContract : public QObject, private TableEditors
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void escapeTakesBackWhatHasBegun_data() { addBeginnings(); }
    void escapeTakesBackWhatHasBegun()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        const QList<QByteArray> before = rig.rows();
        fetchBeginning().begin(rig);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        TableRig::settle();
        TableRig::runSensors();
        rig.leave();
        QCOMPARE(rig.rows(), before);
        QCOMPARE(rig.shownRows(), r.shownAtFirst);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void goingOnToAnotherFieldCommitsWhatHasBeenTyped_data() { addBeginnings(); }
    void goingOnToAnotherFieldCommitsWhatHasBeenTyped()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        TableRig rig(*editor, r.field);
        QList<QByteArray> expected = rig.rows();
        fetchBeginning().begin(rig);
        if (fetchBeginning().endsInACommit)
            expected[1] = r.edit.rowAfter;
        SoMField* const first = rig.field;
        auto* const second = new SoEveryField;
        second->ref();
        rig.edit(*TableRig::fieldOf(*second, r.field));
        QCOMPARE(rig.shownRows(), r.shownAtFirst);
        rig.edit(*first);
        QCOMPARE(rig.rows(), expected);
        QCOMPARE(rig.host.services.count(), fetchBeginning().endsInACommit ? r.edit.commands : 0);
        second->unref();
    }

    void deactivatingTwiceAndReleasingAtAnyTimeDoNoHarm_data() { addRows(); }
    void deactivatingTwiceAndReleasingAtAnyTimeDoNoHarm()
    {
        const TableRow& r = fetchRow();
        r.make()->releaseWidgets();
        const auto editor = r.make();
        editor->deactivate();
        const TableRig rig(*editor, r.field);
        editor->deactivate();
        editor->deactivate();
        QVERIFY(!editor->getWidget()->isVisible());
        QCOMPARE(rig.table().rowCount(), 0);
        editor->releaseWidgets();
        QVERIFY(rig.field->set(r.outside));
        TableRig::runSensors();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void survivesTheDeathOfItsContainerWhileIdle_data() { addRows(); }
    void survivesTheDeathOfItsContainerWhileIdle()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        TableRig rig(*editor, r.field);
        rig.killNode();
        QVERIFY(!editor->getWidget()->isEnabled());
        QVERIFY(!editor->getEditedObject());
        QVERIFY(!editor->field());
        QCOMPARE(rig.table().rowCount(), 0);
        TableRig::runSensors();
        for (const char* button : {"m_addButton", "m_deleteButton", "m_upButton", "m_downButton",
                                   "m_defaultButton", "m_ignoreButton"})
            rig.click(button);
        rig.table().addRow();
        rig.table().deleteRow();
        rig.table().swapRows(0, 1);
        editor->refresh();
        editor->deactivate();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void survivesTheDeathOfItsContainerWhateverHasBegun_data() { addBeginnings(); }
    void survivesTheDeathOfItsContainerWhateverHasBegun()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        TableRig rig(*editor, r.field);
        fetchBeginning().begin(rig);
        QCOMPARE(rig.host.services.count(), 0);
        rig.killNode();
        QVERIFY(!editor->getWidget()->isEnabled());
        QVERIFY(!editor->getEditedObject());
        QVERIFY(!QApplication::activePopupWidget());
        QVERIFY(!rig.table().delegate().openEditor());
        TableRig::runSensors();
        rig.leave();
        editor->deactivate();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void isAsGoodAsNewForTheNextFieldWhateverHasBegun_data() { addBeginnings(); }
    void isAsGoodAsNewForTheNextFieldWhateverHasBegun()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        TableRig rig(*editor, r.field);
        fetchBeginning().begin(rig);
        rig.killNode();
        rig.reviveNode(r.field);
        QVERIFY(editor->getWidget()->isEnabled());
        QCOMPARE(rig.shownRows(), r.shownAtFirst);
        verifyInStep(rig);
        rig.leave();
        QCOMPARE(rig.host.services.count(), 0);
        r.edit.act(rig);
        QCOMPARE(rig.rows()[1], QByteArray(r.edit.rowAfter));
        QCOMPARE(rig.host.services.count(), r.edit.commands);
    }

    void theEditorCanDieWhateverHasBegun_data() { addBeginnings(); }
    void theEditorCanDieWhateverHasBegun()
    {
        const TableRow& r = fetchRow();
        auto editor = r.make();
        const TableRig rig(*editor, r.field);
        const QList<QByteArray> before = rig.rows();
        fetchBeginning().begin(rig);
        editor.reset();
        TableRig::settle();
        TableRig::runSensors();
        QCOMPARE(rig.rows(), before);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void afterSettingToDefaultACellCanBeEdited_data() { addBeginnings(); }
    void afterSettingToDefaultACellCanBeEdited()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        fetchBeginning().begin(rig);
        editor->setDefaultFieldValue();
        TableRig::settle();
        TableRig::runSensors();
        rig.leave();
        if (QWidget* const popup = QApplication::activePopupWidget())
            popup->close();
        QCOMPARE(rig.shownRows(), r.shownAtFirst);
        r.edit.act(rig);
        QCOMPARE(rig.rows()[1], QByteArray(r.edit.rowAfter));
    }
};

TAVRIK_TEST_MAIN(tst_MultipleValueLifeContract)
#include "tst_MultipleValueLifeContract.moc"
