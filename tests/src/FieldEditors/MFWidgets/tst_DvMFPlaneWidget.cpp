#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/MFWidgets/DvMFPlaneWidget.h"

class tst_DvMFPlaneWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void keepsATextInTheFirstColumnOnly()
    {
        DvMFPlaneWidget editor;
        const TableRig rig(editor, "mfPlane");
        rig.node->mfPlane.set1Value(1, SbPlane(SbVec3f(0.6F, 0.8F, 0.0F), 5.0F));
        TableRig::runSensors();
        QCOMPARE(editor.cellText(1, 0), QStringLiteral("0.6"));
        for (int column = 1; column < 4; ++column)
            QVERIFY(editor.cellText(1, column).isNull());
    }

    void theCellsWithoutATextAreEditedAllTheSame_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QByteArray>("row");
        // A normal is given the length 1.
        QTest::newRow("x") << 0 << "1" << QByteArray("0.70710677 0.70710677 0 2");
        QTest::newRow("y") << 1 << "-3" << QByteArray("0 -1 0 2");
        QTest::newRow("z") << 2 << "1" << QByteArray("0 0.70710677 0.70710677 2");
        QTest::newRow("distance") << 3 << "7.5" << QByteArray("0 1 0 7.5");
    }
    void theCellsWithoutATextAreEditedAllTheSame()
    {
        QFETCH(int, column);
        QFETCH(QString, typed);
        QFETCH(QByteArray, row);
        DvMFPlaneWidget editor;
        const TableRig rig(editor, "mfPlane");
        rig.openCell(1, column);
        QCOMPARE(rig.openLine()->text(), editor.cellText(1, column));
        rig.enter(1, column, typed);
        QCOMPARE(rig.rows()[1], row);
        QCOMPARE(rig.host.services.count(), 1);
        TableRig::runSensors();
        if (column > 0)
            QVERIFY(rig.table().item(1, column)->text().isEmpty());
    }
};

TAVRIK_TEST_MAIN(tst_DvMFPlaneWidget)
#include "tst_DvMFPlaneWidget.moc"
