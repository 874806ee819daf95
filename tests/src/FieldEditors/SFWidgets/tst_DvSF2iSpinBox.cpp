#include "tests/support/EditorRig.h"
#include "tests/support/TestMain.h"
#include "tests/support/WheelTurn.h"

#include "FieldEditors/SFWidgets/DvSFVec2i32Widget.h"
#include "FieldEditors/SFWidgets/DvSFVec2sWidget.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include <limits>

namespace {

QSpinBox* box(const EditorRig& rig, int i = 0)
{
    return rig.find<QSpinBox>("SF2SpinBox", i);
}

void type(const EditorRig& rig, int i, const QString& text)
{
    EditorRig::type(box(rig, i)->findChild<QLineEdit*>(), text);
}

} // namespace

/** The two editors of two integers. */
class tst_DvSF2iSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void isCalledByItsClassUnlessATypeSaysOtherwise()
    {
        QCOMPARE(DvSF2iSpinBox::staticMetaObject.className(), "DvSF2iSpinBox");
        DvSFVec2sWidget editor;
        QVERIFY(qobject_cast<DvSF2iSpinBox*>(&editor));
    }

    void showsTwoLabelledSpinBoxesInABox()
    {
        DvSFVec2sWidget editor;
        EditorRig rig(editor, "sfVec2s");
        QCOMPARE(editor.getWidget()->findChildren<QSpinBox*>().size(), 2);
        QCOMPARE(rig.find<QLabel>("SF4flabel", 0)->text(), QStringLiteral("<p>x</p>"));
        QCOMPARE(rig.find<QLabel>("SF4flabel", 1)->text(), QStringLiteral("<p>y</p>"));
        QVERIFY(rig.find<QWidget>("SF2Box")->isAncestorOf(box(rig, 1)));
        QVERIFY(box(rig)->height() >= 16);
    }

    void theLayoutHasItsNameAndItsSpacings()
    {
        DvSFVec2i32Widget editor;
        EditorRig rig(editor, "sfVec2i32");
        auto* const layout = editor.getWidget()->findChild<QGridLayout*>("SF2BoxLayout");
        QVERIFY(layout);
        QCOMPARE(layout->verticalSpacing(), 4);
        QCOMPARE(layout->horizontalSpacing(), 25);
        QCOMPARE(layout->contentsMargins(), QMargins(2, 2, 2, 2));
    }

    void spinningPast32767StopsAt32767()
    {
        DvSFVec2sWidget editor;
        EditorRig rig(editor, "sfVec2s");
        rig.node->sfVec2s.setValue(32766, -32767);
        EditorRig::runSensors();
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(box(rig, 0), Qt::Key_Up);
            QTest::keyClick(box(rig, 1), Qt::Key_Down);
        }
        QCOMPARE(rig.text(), QStringLiteral("32767 -32768"));
        QCOMPARE(rig.host.services.count(), 2);
    }

    void theWideTypeHasTheWholeRange()
    {
        DvSFVec2i32Widget editor;
        EditorRig rig(editor, "sfVec2i32");
        QCOMPARE(box(rig)->minimum(), std::numeric_limits<int>::min());
        QCOMPARE(box(rig)->maximum(), std::numeric_limits<int>::max());
        type(rig, 1, QStringLiteral("-2147483648"));
        QTest::keyClick(box(rig, 1), Qt::Key_Return);
        QCOMPARE(rig.text(), QStringLiteral("1 -2147483648"));
    }

    void everyStepCommits()
    {
        DvSFVec2sWidget editor;
        EditorRig rig(editor, "sfVec2s");
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(box(rig), Qt::Key_Up);
        QCOMPARE(rig.text(), QStringLiteral("4 2"));
        QCOMPARE(rig.host.services.count(), 3);
    }

    void aTypedNumberIsOneCommit()
    {
        DvSFVec2sWidget editor;
        EditorRig rig(editor, "sfVec2s");
        type(rig, 0, QStringLiteral("1234"));
        QCOMPARE(rig.host.services.count(), 0);
        QVERIFY(editor.hasPendingEdit());
        QTest::keyClick(box(rig), Qt::Key_Return);
        rig.leave();
        EditorRig::runSensors();
        QCOMPARE(rig.text(), QStringLiteral("1234 2"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void aTypedNumberIsCommittedByLeaving()
    {
        DvSFVec2sWidget editor;
        EditorRig rig(editor, "sfVec2s");
        type(rig, 1, QStringLiteral("77"));
        rig.leave();
        QCOMPARE(rig.text(), QStringLiteral("1 77"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void aTypedNumberIsCommittedByGoingOnToAnotherField()
    {
        DvSFVec2sWidget editor;
        EditorRig rig(editor, "sfVec2s");
        type(rig, 0, QStringLiteral("77"));
        editor.deactivate();
        QCOMPARE(rig.text(), QStringLiteral("77 2"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void aHalfTypedNumberThatIsLeftIsTakenBack()
    {
        DvSFVec2sWidget editor;
        EditorRig rig(editor, "sfVec2s");
        type(rig, 0, QStringLiteral("-"));
        rig.leave();
        QCOMPARE(box(rig)->text(), QStringLiteral("1"));
        QCOMPARE(rig.text(), QStringLiteral("1 2"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void aTypedTextSurvivesAnOutsideChange()
    {
        DvSFVec2sWidget editor;
        EditorRig rig(editor, "sfVec2s");
        type(rig, 0, QStringLiteral("77"));
        rig.node->sfVec2s.setValue(5, 6);
        EditorRig::runSensors();
        QCOMPARE(box(rig, 0)->text(), QStringLiteral("77"));
        QCOMPARE(box(rig, 1)->text(), QStringLiteral("6"));
        QTest::keyClick(box(rig), Qt::Key_Return);
        QCOMPARE(rig.text(), QStringLiteral("77 6"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void typingTheFormerValueAfterAnOutsideChangeCommitsIt()
    {
        DvSFVec2sWidget editor;
        EditorRig rig(editor, "sfVec2s");
        type(rig, 0, QStringLiteral("12"));
        rig.node->sfVec2s.setValue(5, 6);
        EditorRig::runSensors();
        QTest::keyClick(box(rig), Qt::Key_Backspace);
        QTest::keyClick(box(rig), Qt::Key_Return);
        QCOMPARE(rig.text(), QStringLiteral("1 6"));
    }

    void escapeAfterAnOutsideChangeShowsTheOutsideValue()
    {
        DvSFVec2sWidget editor;
        EditorRig rig(editor, "sfVec2s");
        type(rig, 0, QStringLiteral("12"));
        rig.node->sfVec2s.setValue(5, 6);
        EditorRig::runSensors();
        QTest::keyClick(box(rig), Qt::Key_Escape);
        QCOMPARE(box(rig, 0)->text(), QStringLiteral("5"));
        QVERIFY(!editor.hasPendingEdit());
    }

    void anOutsideChangeOfTheOtherComponentThatIsNotShownYetSurvivesAStep()
    {
        DvSFVec2i32Widget editor;
        EditorRig rig(editor, "sfVec2i32");
        rig.node->sfVec2i32.setValue(1, 42); // the sensors have not run yet
        QTest::keyClick(box(rig, 0), Qt::Key_Up);
        QCOMPARE(rig.text(), QStringLiteral("2 42"));
    }

    void refreshingCommitsNothingAndWritesNoMixedValue()
    {
        DvSFVec2sWidget editor;
        EditorRig rig(editor, "sfVec2s");
        rig.node->sfVec2s.setValue(30, 40);
        EditorRig::runSensors();
        QCOMPARE(rig.text(), QStringLiteral("30 40"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void theWheelTurnsTheValueWithTheFocusOnly()
    {
        DvSFVec2sWidget editor;
        EditorRig rig(editor, "sfVec2s");
        rig.leave();
        turnWheel(*box(rig));
        turnWheel(*box(rig)->findChild<QLineEdit*>());
        QCOMPARE(rig.text(), QStringLiteral("1 2"));
        QVERIFY(!box(rig)->hasFocus());
        box(rig)->setFocus();
        turnWheel(*box(rig));
        QCOMPARE(rig.text(), QStringLiteral("2 2"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void keepsTheSteppedValueWhenItIsUndone()
    {
        DvSFVec2sWidget editor;
        EditorRig rig(editor, "sfVec2s");
        QTest::keyClick(box(rig), Qt::Key_Up);
        rig.host.services.undo(0);
        QCOMPARE(rig.text(), QStringLiteral("2 2"));
    }
};

TAVRIK_TEST_MAIN(tst_DvSF2iSpinBox)
#include "tst_DvSF2iSpinBox.moc"
