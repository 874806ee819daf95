#include "tests/support/EditorRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFLineWidget.h"

#include <Inventor/errors/SoReadError.h>
#include <Inventor/nodes/SoCube.h>

#include <QLabel>
#include <QLineEdit>

class tst_DvSFLineWidget : public QObject
{
    Q_OBJECT

private:
    static QLineEdit* line(const EditorRig& rig) { return rig.find<QLineEdit>("lineEdit"); }

    static void countReport(const SoError*, void* count) { ++*static_cast<int*>(count); }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void handlesEverySingleValueField()
    {
        DvSFLineWidget editor;
        QVERIFY(editor.getHandledType() == SoSField::getClassTypeId());
        EditorRig rig(editor, "sfTime");
        QCOMPARE(line(rig)->text(), QStringLiteral("1.5"));
        QCOMPARE(rig.find<QLabel>("m_label")->text(),
                 QStringLiteral("<p align=\"center\">SField</p>"));
        QCOMPARE(rig.find<QLabel>("m_label")->toolTip(), QStringLiteral("SFTime"));
    }

    void aCompleteTextIsAppliedWhileItIsTypedAndCommittedOnceOnReturn()
    {
        DvSFLineWidget editor;
        EditorRig rig(editor, "sfTime");
        EditorRig::type(line(rig), "2");
        QCOMPARE(rig.text(), QStringLiteral("2"));
        QCOMPARE(rig.host.services.count(), 0);
        QTest::keyClick(line(rig), Qt::Key_Return);
        QCOMPARE(rig.host.services.count(), 1);
        rig.leave();
        QCOMPARE(rig.host.services.count(), 1);
    }

    void typingAtHumanSpeedGivesWhatWasTyped()
    {
        DvSFLineWidget editor;
        EditorRig rig(editor, "sfTime");
        EditorRig::type(line(rig), "");
        for (const char* key = "2.50"; *key; ++key) {
            QTest::keyClick(line(rig), *key);
            EditorRig::runSensors(); // the refresh between two keys leaves the line alone
        }
        QCOMPARE(line(rig)->text(), QStringLiteral("2.50"));
        QTest::keyClick(line(rig), Qt::Key_Return);
        EditorRig::runSensors();
        QCOMPARE(rig.text(), QStringLiteral("2.5"));
        QCOMPARE(line(rig)->text(), QStringLiteral("2.5"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void anIncompleteTextWaitsMarkedAndReportsNothing()
    {
        DvSFLineWidget editor;
        EditorRig rig(editor, "sfVec3d");
        int reports = 0;
        SoErrorCB* const before = SoReadError::getHandlerCallback();
        SoReadError::setHandlerCallback(&tst_DvSFLineWidget::countReport, &reports);
        EditorRig::type(line(rig), "4 5");
        QCOMPARE(rig.text(), QStringLiteral("1 2 3"));
        QCOMPARE(line(rig)->toolTip(), QStringLiteral("Not a value of type SFVec3d"));
        QTest::keyClick(line(rig), Qt::Key_Return);
        QCOMPARE(rig.text(), QStringLiteral("1 2 3"));
        QCOMPARE(rig.host.services.count(), 0);
        QTest::keyClicks(line(rig), " 6");
        QCOMPARE(line(rig)->toolTip(), QStringLiteral("SFVec3d"));
        QTest::keyClick(line(rig), Qt::Key_Return);
        SoReadError::setHandlerCallback(before, nullptr);
        QCOMPARE(rig.text(), QStringLiteral("4 5 6"));
        QCOMPARE(rig.host.services.count(), 1);
        QCOMPARE(reports, 0);
    }

    void aTextWithARestThatIsNoValueIsNotTaken()
    {
        DvSFLineWidget editor;
        EditorRig rig(editor, "sfVec3d");
        EditorRig::type(line(rig), "4 5 6 seven");
        QTest::keyClick(line(rig), Qt::Key_Return);
        rig.leave();
        QCOMPARE(line(rig)->toolTip(), QStringLiteral("Not a value of type SFVec3d"));
        QCOMPARE(line(rig)->text(), QStringLiteral("4 5 6 seven"));
    }

    void whatWasAppliedBeforeTheTextWentWrongIsCommittedOnLeaving()
    {
        DvSFLineWidget editor;
        EditorRig rig(editor, "sfTime");
        EditorRig::type(line(rig), "7x");
        QCOMPARE(rig.text(), QStringLiteral("7"));
        rig.leave();
        QCOMPARE(rig.text(), QStringLiteral("7"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void escapeTakesBackWhatWasAppliedWhileTyping()
    {
        DvSFLineWidget editor;
        EditorRig rig(editor, "sfTime");
        EditorRig::type(line(rig), "99");
        QCOMPARE(rig.text(), QStringLiteral("99"));
        QTest::keyClick(line(rig), Qt::Key_Escape);
        QCOMPARE(rig.text(), QStringLiteral("1.5"));
        QCOMPARE(line(rig)->text(), QStringLiteral("1.5"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void visitingAndLeavingCommitsNothing()
    {
        DvSFLineWidget editor;
        EditorRig rig(editor, "sfTime");
        QTest::mouseClick(line(rig), Qt::LeftButton);
        rig.leave();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void returnOnAnUneditedNodeFieldKeepsTheVeryNode()
    {
        DvSFLineWidget editor;
        EditorRig rig(editor, "sfTime");
        auto* const cube = new SoCube;
        rig.node->sfNode = cube;
        rig.field = &rig.node->sfNode;
        rig.edit();
        QTest::keyClick(line(rig), Qt::Key_Return);
        rig.leave();
        QCOMPARE(rig.node->sfNode.getValue(), static_cast<SoNode*>(cube));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void aNodeFieldChangesOnReturnAndNotAtEveryKey()
    {
        DvSFLineWidget editor;
        EditorRig rig(editor, "sfNode");
        EditorRig::type(line(rig), "Cone { height 5 }");
        QVERIFY(!rig.node->sfNode.getValue());
        QTest::keyClick(line(rig), Qt::Key_Return);
        QVERIFY(rig.node->sfNode.getValue());
        QCOMPARE(rig.host.services.count(), 1);
        EditorRig::runSensors();
        EditorRig::type(line(rig), "NULL");
        QTest::keyClick(line(rig), Qt::Key_Return);
        QVERIFY(!rig.node->sfNode.getValue());
        QCOMPARE(rig.host.services.count(), 2);
    }

    void anOutsideChangeRefreshesALineThatIsNotBeingEdited()
    {
        DvSFLineWidget editor;
        EditorRig rig(editor, "sfTime");
        line(rig)->setFocus();
        rig.node->sfTime = SbTime(4.0);
        EditorRig::runSensors();
        QCOMPARE(line(rig)->text(), QStringLiteral("4"));
    }

    void keepsTheNewValueWhenUndone()
    {
        DvSFLineWidget editor;
        EditorRig rig(editor, "sfTime");
        EditorRig::type(line(rig), "3");
        QTest::keyClick(line(rig), Qt::Key_Return);
        rig.host.services.undo(0);
        QCOMPARE(rig.text(), QStringLiteral("3"));
    }
};

TAVRIK_TEST_MAIN(tst_DvSFLineWidget)
#include "tst_DvSFLineWidget.moc"
