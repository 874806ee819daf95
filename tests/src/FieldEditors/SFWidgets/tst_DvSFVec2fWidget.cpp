#include "tests/support/LineChecks.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFVec2fWidget.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

class tst_DvSFVec2fWidget : public QObject
{
    Q_OBJECT

private:
    static QLineEdit* line(const EditorRig& rig, int i)
    {
        return rig.find<QLineEdit>("SFVec2fLine", i);
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void showsTwoLabelledLinesInABox()
    {
        DvSFVec2fWidget editor;
        EditorRig rig(editor, "sfVec2f");
        QCOMPARE(rig.find<QLabel>("SFVec2fLabel", 0)->text(), QStringLiteral("<p>x</p>"));
        QCOMPARE(rig.find<QLabel>("SFVec2fLabel", 1)->text(), QStringLiteral("<p>y</p>"));
        QCOMPARE(editor.getWidget()->findChildren<QLineEdit*>("SFVec2fLine").size(), 2);
        QVERIFY(rig.find<QWidget>("SFVec2fBox")->isAncestorOf(line(rig, 0)));
    }

    void theLayoutHasItsNameAndItsSpacings()
    {
        DvSFVec2fWidget editor;
        EditorRig rig(editor, "sfVec2f");
        auto* const layout = editor.getWidget()->findChild<QGridLayout*>("SFVec2fLayout");
        QVERIFY(layout);
        QCOMPARE(layout->verticalSpacing(), 4);
        QCOMPARE(layout->horizontalSpacing(), 25);
        QCOMPARE(layout->contentsMargins(), QMargins(2, 2, 2, 2));
    }

    void everyLineTakesSinglePrecisionNumbersWithSixDecimals()
    {
        DvSFVec2fWidget editor;
        EditorRig rig(editor, "sfVec2f");
        LineChecks::takeSinglePrecisionNumbers(rig, "SFVec2fLine", 2);
    }

    void anEditOfOneComponentLeavesTheOtherToTheLastBit()
    {
        DvSFVec2fWidget editor;
        EditorRig rig(editor, "sfVec2f");
        rig.node->sfVec2f.setValue(1.23456788F, 2.0F);
        EditorRig::runSensors();
        EditorRig::type(line(rig, 1), QStringLiteral("1e-7"));
        QTest::keyClick(line(rig, 1), Qt::Key_Return);
        EditorRig::runSensors();
        QVERIFY(rig.node->sfVec2f.getValue() == SbVec2f(1.23456788F, 1e-7F));
        QCOMPARE(line(rig, 1)->text(), QStringLiteral("1e-07"));
    }

    void leavingAnEditedLineCommitsOnce()
    {
        DvSFVec2fWidget editor;
        EditorRig rig(editor, "sfVec2f");
        LineChecks::leavingCommitsOnce(rig, line(rig, 1), "5", "1 5");
    }

    void anEditCarriedFromOneLineToTheOtherMakesTwoCommands()
    {
        DvSFVec2fWidget editor;
        EditorRig rig(editor, "sfVec2f");
        EditorRig::type(line(rig, 0), QStringLiteral("5"));
        EditorRig::type(line(rig, 1), QStringLiteral("6"));
        QCOMPARE(rig.host.services.count(), 1);
        rig.leave();
        QCOMPARE(rig.text(), QStringLiteral("5 6"));
        QCOMPARE(rig.host.services.count(), 2);
    }

    void textThatIsNoNumberCountsAsZero()
    {
        DvSFVec2fWidget editor;
        EditorRig rig(editor, "sfVec2f");
        LineChecks::noNumberCountsAsZero(rig, line(rig, 0), "0 2");
    }

    void aHalfTypedNumberThatIsLeftIsTakenBack()
    {
        DvSFVec2fWidget editor;
        EditorRig rig(editor, "sfVec2f");
        LineChecks::halfANumberIsTakenBack(rig, line(rig, 0));
    }

    void keepsTheNewValueWhenUndone()
    {
        DvSFVec2fWidget editor;
        EditorRig rig(editor, "sfVec2f");
        LineChecks::keepsTheNewValueWhenUndone(rig, line(rig, 1), "8");
    }
};

TAVRIK_TEST_MAIN(tst_DvSFVec2fWidget)
#include "tst_DvSFVec2fWidget.moc"
