#include "tests/contracts/TableEditors.h"
#include "tests/support/TestMain.h"

#include <QLabel>
#include <QPushButton>

/** What all multiple-value editors have in common, one row an editor: what they show and write. */
class tst_MultipleValueEditorContract : public QObject, private TableEditors
{
    Q_OBJECT

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
};

TAVRIK_TEST_MAIN(tst_MultipleValueEditorContract)
#include "tst_MultipleValueEditorContract.moc"
