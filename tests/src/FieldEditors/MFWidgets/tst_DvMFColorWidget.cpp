#include "tests/support/ModalDialog.h"
#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/DvMFColorTable.h"
#include "FieldEditors/MFWidgets/DvMFColorWidget.h"
#include "FieldEditors/TvkMFSetFieldValueCommand.h"

#include <QColorDialog>

class tst_DvMFColorWidget : public QObject
{
    Q_OBJECT

private:
    static ModalDialog::Action choosing(const QColor& color)
    {
        return [color](QDialog& dialog) {
            auto* const colors = qobject_cast<QColorDialog*>(&dialog);
            QVERIFY(colors);
            colors->setCurrentColor(color);
            colors->accept();
        };
    }

    static void clickCell(const TableRig& rig, int row, int column)
    {
        const QRect cell = rig.table().visualItemRect(rig.table().item(row, column));
        QTest::mouseClick(rig.table().viewport(), Qt::LeftButton, {}, cell.center());
        ModalDialog::waitForEnd();
    }

    static SbColor color(const TableRig& rig, int row) { return rig.node->mfColor[row]; }

private slots:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        SoEveryField::initClass();
    }

    void choosingAColorWritesTheRowAndPushesOneCommand()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        const ModalDialog dialog(choosing(QColor(255, 51, 0)));
        clickCell(rig, 1, 0);
        QCOMPARE(rig.rows(), QList<QByteArray>({"1 0 0.5", "1 0.2 0", "0.25 0.5 0.75"}));
        QCOMPARE(rig.host.services.count(), 1);
        QVERIFY(dynamic_cast<TvkMFSetFieldValueCommand*>(&rig.host.services.at(0)));
        TableRig::runSensors();
        QCOMPARE(rig.shownRow(1), QStringLiteral("1|0.2|0"));
    }

    void keepsTheNewColorWhenTheChoiceIsUndone()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        const ModalDialog dialog(choosing(Qt::blue));
        clickCell(rig, 0, 0);
        rig.host.services.undo(0);
        QVERIFY(color(rig, 0) == SbColor(0, 0, 1));
    }

    void aCellCanBeEditedToo()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        rig.enter(2, 0, QStringLiteral("1"));
        QCOMPARE(rig.rows()[2], QByteArray("1 0.5 0.75"));
        QVERIFY(dynamic_cast<TvkMFSetFieldValueCommand*>(&rig.host.services.at(0)));
    }

    void editingACellKeepsTheBitsOfTheOthers()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        rig.node->mfColor.set1Value(0, 0.333333343F, 0.0F, 1e-30F);
        TableRig::runSensors();
        rig.enter(0, 1, QStringLiteral("0.5"));
        QVERIFY(color(rig, 0) == SbColor(0.333333343F, 0.5F, 1e-30F));
    }

    void theCellsAreFilledWithTheColorOfTheirRow()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        const auto* const table = qobject_cast<DvMFColorTable*>(&rig.table());
        QVERIFY(table);
        const QImage picture = table->viewport()->grab().toImage();
        for (int row = 0; row < 3; ++row) {
            const QRect cell = table->visualItemRect(table->item(row, 1));
            QCOMPARE(picture.pixelColor(cell.topLeft() + QPoint(2, 2)), table->rowColor(row));
        }
    }
};

TAVRIK_TEST_MAIN(tst_DvMFColorWidget)
#include "tst_DvMFColorWidget.moc"
