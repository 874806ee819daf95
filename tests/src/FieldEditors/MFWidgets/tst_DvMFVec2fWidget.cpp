#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/MFWidgets/DvMFVec2fWidget.h"
#include "FieldEditors/TvkMFSetValueCommand.h"

class tst_DvMFVec2fWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void editingYWritesItBesideTheOldX()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.node->mfVec2f.set1Value(3, 0.333333343F, 8.0F);
        TableRig::runSensors();
        rig.enter(3, 1, QStringLiteral("2.5"));
        QVERIFY(rig.node->mfVec2f[3] == SbVec2f(0.333333343F, 2.5F));
        QCOMPARE(rig.host.services.count(), 1);
        QVERIFY(dynamic_cast<TvkMFSetValueCommand*>(&rig.host.services.at(0)));
    }

    void keepsTheNewValueWhenAnEditIsUndone()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.enter(1, 1, QStringLiteral("2.5"));
        rig.host.services.undo(0);
        QCOMPARE(rig.rows()[1], QByteArray("3 2.5"));
    }

    void sixDigitsAreShown()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.node->mfVec2f.set1Value(0, 0.1234567F, 123456789.0F);
        TableRig::runSensors();
        QCOMPARE(rig.shownRow(0), QStringLiteral("0.123457|1.23457e+08"));
    }

    void aTextThatIsNoNumberGives0()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        editor.applyCell(1, 0, QStringLiteral("none"));
        QCOMPARE(rig.rows()[1], QByteArray("0 4"));
    }

    void aColumnThatIsNoneKeepsTheValue()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        editor.applyCell(1, 2, QStringLiteral("9"));
        editor.applyCell(1, -1, QStringLiteral("9"));
        QCOMPARE(rig.rows()[1], QByteArray("3 4"));
    }

    void keepsSwappingDirectAndWithoutAnUndoEntry()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        editor.swapRows(0, 2);
        QCOMPARE(rig.rows(), QList<QByteArray>({"5 6", "3 4", "1 2"}));
        QCOMPARE(rig.host.services.count(), 0);
    }
};

TAVRIK_TEST_MAIN(tst_DvMFVec2fWidget)
#include "tst_DvMFVec2fWidget.moc"
