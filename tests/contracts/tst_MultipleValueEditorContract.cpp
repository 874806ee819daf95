#include "tests/contracts/TableRows.h"
#include "tests/support/TestMain.h"

#include <QLabel>
#include <QPushButton>

/** What all multiple-value editors have in common, one row an editor. */
class tst_MultipleValueEditorContract : public QObject
{
    Q_OBJECT

private:
    static const std::vector<TableRow>& rows()
    {
        static const std::vector<TableRow> s_rows = allRows();
        return s_rows;
    }

    static std::vector<TableRow> allRows()
    {
        std::vector<TableRow> all = numberTableRows();
        for (const auto& family : {columnTableRows(), otherTableRows()})
            all.insert(all.end(), family.begin(), family.end());
        return all;
    }

    static void addRows()
    {
        QTest::addColumn<int>("row");
        int number = 0;
        for (const TableRow& row : rows())
            QTest::newRow(row.name) << number++;
    }

    /** One row for each thing that can be begun in each editor. */
    static void addBeginnings()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("beginning");
        int number = 0;
        for (const TableRow& row : rows()) {
            int beginning = 0;
            for (const TableRow::Beginning& begun : row.beginnings) {
                const QByteArray name = QByteArray(row.name) + ", " + begun.name;
                QTest::newRow(name.constData()) << number << beginning++;
            }
            ++number;
        }
    }

    static const TableRow& fetchRow()
    {
        QFETCH(int, row);
        return rows()[static_cast<std::size_t>(row)];
    }

    static const TableRow::Beginning& fetchBeginning()
    {
        QFETCH(int, beginning);
        return fetchRow().beginnings[static_cast<std::size_t>(beginning)];
    }

    /** What a row holds that is added at a place. */
    static QByteArray addedAt(const TableRow& row, const QList<QByteArray>& rows, int place)
    {
        return row.copiesWhenAdding && !rows.isEmpty() ? rows[std::min(place, rows.size() - 1)]
                                                       : QByteArray(row.emptyRow);
    }

    /** The table, the spin box and the field have the same rows. */
    static void verifyInStep(const TableRig& rig)
    {
        const int rows = rig.field->getNum();
        QCOMPARE(rig.table().rowCount(), rows);
        QCOMPARE(rig.accessBox().maximum(), rows);
        QCOMPARE(rig.accessBox().minimum(), rows > 0 ? 1 : 0);
        if (rig.table().currentRow() >= 0)
            QCOMPARE(rig.accessBox().value(), rig.table().currentRow() + 1);
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < rig.table().columnCount(); ++column)
                QCOMPARE(rig.table().item(row, column)->text(), rig.editor.cellText(row, column));
        }
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void thereAreSeventeen() { QCOMPARE(rows().size(), std::size_t(17)); }

    void tellsWhoItIsAndWhatItHandles_data() { addRows(); }
    void tellsWhoItIsAndWhatItHandles()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        QCOMPARE(editor->objectName(), QString(r.name));
        QCOMPARE(editor->metaObject()->className(), r.name);
        QCOMPARE(editor->getName().getString(), r.name);
        QVERIFY(editor->getHandledType() == r.handledType());
        const TableRig rig(*editor, r.field);
        QCOMPARE(rig.find<QLabel>("m_label")->text(),
                 QStringLiteral("<p align=\"center\">%1</p>").arg(QLatin1String(r.label)));
    }

    void acceptsFieldsOfItsTypeOnly_data() { addRows(); }
    void acceptsFieldsOfItsTypeOnly()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        auto* const node = new SoEveryField;
        node->ref();
        QVERIFY(editor->accept(node->getField(r.field))); // without its widgets, too
        node->unref();
        const TableRig rig(*editor, r.field);
        QVERIFY(editor->accept(rig.field));
        QVERIFY(!editor->accept(nullptr));
        QVERIFY(!editor->accept(&rig.node->sfFloat));
        if (r.handledType() != SoMField::getClassTypeId())
            QVERIFY(!editor->accept(&rig.node->mfTime));
    }

    void hasTheColumnsOfItsType_data() { addRows(); }
    void hasTheColumnsOfItsType()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        QStringList headers;
        for (int column = 0; column < rig.table().columnCount(); ++column)
            headers << rig.table().horizontalHeaderItem(column)->text();
        QCOMPARE(headers, r.headers);
        QCOMPARE(rig.table().delegate().valueKind(), r.valueKind);
    }

    void showsTheFieldAndPushesNothing_data() { addRows(); }
    void showsTheFieldAndPushesNothing()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        const QList<QByteArray> before = rig.rows();
        QCOMPARE(rig.shownRows(), r.shownAtFirst);
        verifyInStep(rig);
        editor->refresh();
        rig.leave();
        TableRig::runSensors();
        QCOMPARE(rig.rows(), before);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void noCellOutsideOfTheFieldHasAText_data() { addRows(); }
    void noCellOutsideOfTheFieldHasAText()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        for (const auto& [row, column] :
             {std::make_pair(-1, 0), std::make_pair(3, 0), std::make_pair(0, r.headers.size()),
              std::make_pair(0, -1), std::make_pair(INT_MAX, 0)})
            QVERIFY(editor->cellText(row, column).isNull());
    }

    void rowsOfOneValueShowTheSame_data() { addRows(); }
    void rowsOfOneValueShowTheSame()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        for (const int row : {-1, 3, INT_MAX})
            QVERIFY(editor->rowValue(row).isEmpty());
        const QByteArray before = editor->rowValue(1);
        QCOMPARE(editor->rowValue(1), before);
        r.edit.act(rig);
        QVERIFY(editor->rowValue(1) != before);
        const QList<QByteArray> rows = rig.rows();
        for (int left = 0; left < 3; ++left) {
            for (int right = 0; right < 3; ++right)
                QCOMPARE(editor->rowValue(left) == editor->rowValue(right),
                         rows[left] == rows[right]);
        }
        editor->swapRows(0, 1);
        const QByteArray second = editor->rowValue(1);
        editor->swapRows(0, 1);
        QCOMPARE(editor->rowValue(0), second);
    }

    void nothingIsWrittenOutsideOfTheFieldsRows_data() { addRows(); }
    void nothingIsWrittenOutsideOfTheFieldsRows()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        const QList<QByteArray> before = rig.rows();
        for (const int row : {-1, 3, INT_MAX, INT_MIN}) {
            editor->applyCell(row, 0, QStringLiteral("1"));
            editor->swapRows(0, row);
            editor->swapRows(row, 0);
        }
        QCOMPARE(rig.rows(), before);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void anOutsideChangeOfValuesAndLengthIsShown_data() { addRows(); }
    void anOutsideChangeOfValuesAndLengthIsShown()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        QVERIFY(rig.field->set(r.outside));
        TableRig::runSensors();
        QCOMPARE(rig.shownRows(), r.shownOutside);
        verifyInStep(rig);
        rig.field->setNum(1);
        TableRig::runSensors();
        QCOMPARE(rig.shownRows(), r.shownOutside.mid(0, 1));
        verifyInStep(rig);
        rig.field->setNum(0);
        TableRig::runSensors();
        verifyInStep(rig);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void editingACellWritesTheFieldAndPushesWhatItsTypeDoes_data() { addRows(); }
    void editingACellWritesTheFieldAndPushesWhatItsTypeDoes()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        QList<QByteArray> expected = rig.rows();
        r.edit.act(rig);
        expected[1] = r.edit.rowAfter;
        QCOMPARE(rig.rows(), expected);
        QCOMPARE(rig.host.services.count(), r.edit.commands);
        TableRig::runSensors();
        rig.leave();
        TableRig::runSensors();
        verifyInStep(rig);
        QCOMPARE(rig.host.services.count(), r.edit.commands);
        // The command has read the field after the write: undoing keeps the new value.
        for (int command = 0; command < r.edit.commands; ++command) {
            rig.host.services.undo(command);
            QCOMPARE(rig.rows(), expected);
            rig.host.services.redo(command);
            QCOMPARE(rig.rows(), expected);
        }
    }

    void swappingExchangesTheValuesTheWayOfItsType_data() { addRows(); }
    void swappingExchangesTheValuesTheWayOfItsType()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        const QList<QByteArray> before = rig.rows();
        editor->swapRows(0, 2);
        QCOMPARE(rig.rows(), QList<QByteArray>({before[2], before[1], before[0]}));
        QCOMPARE(rig.host.services.count(), r.swapsByCommand ? 1 : 0);
        editor->swapRows(0, 2);
        QCOMPARE(rig.rows(), before);
    }

    void movingARowIsUndoneAndRedone_data() { addRows(); }
    void movingARowIsUndoneAndRedone()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        const QList<QByteArray> before = rig.rows();
        rig.table().setCurrentCell(1, 0);
        rig.click("m_upButton");
        const QList<QByteArray> moved = {before[1], before[0], before[2]};
        QCOMPARE(rig.rows(), moved);
        QCOMPARE(rig.table().currentRow(), 0);
        QCOMPARE(rig.host.services.count(), 1);
        rig.host.services.undo(0);
        QCOMPARE(rig.rows(), before);
        rig.host.services.redo(0);
        QCOMPARE(rig.rows(), moved);
        TableRig::runSensors();
        verifyInStep(rig);
    }

    void aRowIsAddedAfterTheCurrentOne_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("current");
        int number = 0;
        for (const TableRow& row : rows()) {
            for (const int current : {-1, 0, 2})
                QTest::addRow("%s, after row %d", row.name, current) << number << current;
            ++number;
        }
    }
    void aRowIsAddedAfterTheCurrentOne()
    {
        const TableRow& r = fetchRow();
        QFETCH(int, current);
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        const QList<QByteArray> before = rig.rows();
        rig.table().setCurrentCell(current, current < 0 ? -1 : 0);
        QCOMPARE(rig.table().currentRow(), current);
        rig.click("m_addButton");
        QList<QByteArray> added = before;
        added.insert(current + 1, addedAt(r, before, current + 1));
        QCOMPARE(rig.rows(), added);
        QCOMPARE(rig.table().currentRow(), std::max(current, 0));
        TableRig::runSensors();
        verifyInStep(rig);
        rig.host.services.undo(0);
        TableRig::runSensors();
        QCOMPARE(rig.rows(), before);
        verifyInStep(rig);
        rig.host.services.redo(0);
        TableRig::runSensors();
        QCOMPARE(rig.rows(), added);
        verifyInStep(rig);
        QCOMPARE(rig.host.services.count(), 1);
    }

    void theCurrentRowIsDeleted_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("current");
        int number = 0;
        for (const TableRow& row : rows()) {
            for (const int current : {0, 1, 2})
                QTest::addRow("%s, row %d", row.name, current) << number << current;
            ++number;
        }
    }
    void theCurrentRowIsDeleted()
    {
        const TableRow& r = fetchRow();
        QFETCH(int, current);
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        const QList<QByteArray> before = rig.rows();
        rig.table().setCurrentCell(current, 0);
        rig.click("m_deleteButton");
        QList<QByteArray> deleted = before;
        deleted.removeAt(current);
        QCOMPARE(rig.rows(), deleted);
        TableRig::runSensors();
        verifyInStep(rig);
        rig.host.services.undo(0);
        TableRig::runSensors();
        QCOMPARE(rig.rows(), before);
        verifyInStep(rig);
        rig.host.services.redo(0);
        TableRig::runSensors();
        QCOMPARE(rig.rows(), deleted);
        verifyInStep(rig);
        QCOMPARE(rig.host.services.count(), 1);
    }

    void theLastRowOfAllCanGoAndComeBack_data() { addRows(); }
    void theLastRowOfAllCanGoAndComeBack()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        rig.field->setNum(1);
        TableRig::runSensors();
        const QList<QByteArray> before = rig.rows();
        rig.click("m_deleteButton");
        QCOMPARE(rig.field->getNum(), 0);
        TableRig::runSensors();
        verifyInStep(rig);
        rig.click("m_deleteButton"); // there is none
        QCOMPARE(rig.host.services.count(), 1);
        rig.host.services.undo(0);
        TableRig::runSensors();
        QCOMPARE(rig.rows(), before);
        verifyInStep(rig);
    }

    void theFirstRowOfAllIsInOrder_data() { addRows(); }
    void theFirstRowOfAllIsInOrder()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        rig.field->setNum(0);
        TableRig::runSensors();
        rig.click("m_addButton");
        QCOMPARE(rig.rows(), QList<QByteArray>({r.emptyRow}));
        QCOMPARE(rig.table().currentRow(), 0);
        TableRig::runSensors();
        verifyInStep(rig);
        rig.host.services.undo(0);
        TableRig::runSensors();
        QCOMPARE(rig.field->getNum(), 0);
        verifyInStep(rig);
    }

    void visitingEveryCellChangesNoBit_data() { addRows(); }
    void visitingEveryCellChangesNoBit()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        QVERIFY(rig.field->set(r.rough));
        TableRig::runSensors();
        const std::unique_ptr<SoMField> before(
            static_cast<SoMField*>(rig.field->getTypeId().createInstance()));
        before->copyFrom(*rig.field);
        for (int row = 0; row < rig.table().rowCount(); ++row) {
            for (int column = 0; column < rig.table().columnCount(); ++column) {
                rig.openCell(row, column);
                QTest::keyClick(rig.openLine() ? static_cast<QWidget*>(rig.openLine())
                                               : &rig.table(),
                                column % 2 ? Qt::Key_Return : Qt::Key_Tab);
                rig.openCell(row, column);
                rig.leave();
            }
        }
        editor->deactivate();
        QVERIFY(before->isSame(*rig.field));
        QCOMPARE(rig.host.services.count(), 0);
    }

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

    void aConnectedFieldIsShownAndCannotBeEdited_data() { addRows(); }
    void aConnectedFieldIsShownAndCannotBeEdited()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        auto* const master = new SoEveryField;
        master->ref();
        QVERIFY(master->getField(r.field)->set(r.outside));
        QVERIFY(rig.field->connectFrom(master->getField(r.field)));
        TableRig::runSensors();
        QCOMPARE(rig.shownRows(), r.shownOutside);
        verifyInStep(rig);
        for (const char* button : {"m_addButton", "m_deleteButton", "m_upButton", "m_downButton"})
            QVERIFY(!rig.find<QPushButton>(button)->isEnabled());
        const QString reason = QStringLiteral("EveryField.") + QLatin1String(r.field);
        QVERIFY2(rig.table().toolTip().contains(reason), qPrintable(rig.table().toolTip()));
        QVERIFY(!rig.openCell(1, 0));
        for (const int key : {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Delete})
            QTest::keyClick(&rig.table(), Qt::Key(key));
        TableRig::runSensors();
        QCOMPARE(rig.shownRows(), r.shownOutside);
        QCOMPARE(rig.host.services.count(), 0);
        // And again, once it is not connected any more.
        rig.field->disconnect();
        TableRig::runSensors();
        editor->refresh();
        QVERIFY(rig.table().toolTip().isEmpty());
        QVERIFY(rig.find<QPushButton>("m_addButton")->isEnabled());
        master->unref();
    }

    void theButtonsWork_data() { addRows(); }
    void theButtonsWork()
    {
        const TableRow& r = fetchRow();
        const auto editor = r.make();
        const TableRig rig(*editor, r.field);
        const QList<QByteArray> atFirst = rig.rows();
        QVERIFY(rig.field->set(r.outside));
        QTest::mouseClick(rig.find<QPushButton>("m_ignoreButton"), Qt::LeftButton);
        QVERIFY(rig.field->isIgnored());
        QTest::mouseClick(rig.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        QCOMPARE(rig.rows(), atFirst);
        QCOMPARE(rig.host.services.count(), 2);
        TableRig::runSensors();
        QCOMPARE(rig.shownRows(), r.shownAtFirst);
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

TAVRIK_TEST_MAIN(tst_MultipleValueEditorContract)
#include "tst_MultipleValueEditorContract.moc"
