#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/MFWidgets/DvMFRotationWidget.h"

class tst_DvMFRotationWidget : public QObject
{
    Q_OBJECT

private:
    /** The four numbers of a row's quaternion. */
    static QStringList quaternion(const TableRig& rig, int row)
    {
        QStringList numbers;
        for (int i = 0; i < 4; ++i)
            numbers << QString::number(static_cast<double>(rig.node->mfRotation[row].getValue()[i]),
                                       'g', 4);
        return numbers;
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void keepsATextInTheFirstColumnOnly()
    {
        DvMFRotationWidget editor;
        const TableRig rig(editor, "mfRotation");
        rig.node->mfRotation.set1Value(1, SbRotation(0.5F, 0.5F, 0.5F, 0.5F));
        TableRig::runSensors();
        QCOMPARE(editor.cellText(1, 0), QStringLiteral("0.5"));
        for (int column = 1; column < 4; ++column)
            QVERIFY(editor.cellText(1, column).isNull());
    }

    void keepsTheQuaternionBehindAHeaderThatSaysRadians()
    {
        DvMFRotationWidget editor;
        const TableRig rig(editor, "mfRotation");
        QCOMPARE(rig.table().horizontalHeaderItem(3)->text(), QStringLiteral("radians"));
        rig.node->mfRotation.set1Value(1, SbRotation(1.0F, 0.0F, 0.0F, 0.0F));
        rig.enter(1, 3, QStringLiteral("1"));
        QCOMPARE(quaternion(rig, 1), QStringList({"0.7071", "0", "0", "0.7071"}));
    }

    void keepsTheLengthOfTheQuaternionAt1()
    {
        DvMFRotationWidget editor;
        const TableRig rig(editor, "mfRotation");
        rig.enter(1, 0, QStringLiteral("1"));
        QCOMPARE(quaternion(rig, 1), QStringList({"0.7071", "0", "0", "0.7071"}));
        QCOMPARE(rig.host.services.count(), 1);
        TableRig::runSensors();
        QCOMPARE(rig.shownRow(1), QStringLiteral("0.707107|||"));
    }
};

TAVRIK_TEST_MAIN(tst_DvMFRotationWidget)
#include "tst_DvMFRotationWidget.moc"
