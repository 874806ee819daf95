#include "tests/src/FieldEditors/SFWidgets/PopupParts.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFBox3sWidget.h"
#include "FieldEditors/SFWidgets/DvSFMatrixWidget.h"

#include <QGridLayout>
#include <QIntValidator>

/** The two editors with a pop-up, a box and a matrix: their form and their values. */
class tst_DvPopupWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void aPopupWidgetOfAnyShapeIsCalledByItsClass()
    {
        DvPopupWidget editor(1, 2);
        QCOMPARE(editor.objectName(), QStringLiteral("DvPopupWidget"));
        QCOMPARE(editor.metaObject()->className(), "DvPopupWidget");
        EditorRig rig(editor, "sfVec2f");
        QCOMPARE(editor.getWidget()->findChildren<QLineEdit*>("m_popupLine").size(), 2);
    }

    void theEditButtonStandsBesideTheLine()
    {
        DvSFMatrixWidget editor;
        EditorRig rig(editor, "sfMatrix");
        QCOMPARE(button(rig)->maximumSize(), QSize(20, 20));
        QVERIFY(!button(rig)->icon().isNull());
        QVERIFY(button(rig)->x() > line(rig)->x());
        QVERIFY(!button(rig)->accessibleName().isEmpty());
    }

    void thePopupHasItsSizeAndItsLayout()
    {
        DvSFBox3sWidget editor;
        EditorRig rig(editor, "sfBox3s");
        open(rig);
        QVERIFY(popup(rig)->isVisible());
        QVERIFY(popup(rig)->width() >= 260);
        QVERIFY(popup(rig)->height() >= 100);
        auto* const layout = popup(rig)->findChild<QGridLayout*>("m_popupFrameLayout");
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins(6, 6, 6, 6));
        QCOMPARE(layout->spacing(), 8);
    }

    void aBoxIsSixLinesItsMinimumAboveItsMaximum()
    {
        DvSFBox3sWidget editor;
        EditorRig rig(editor, "sfBox3s");
        open(rig);
        QCOMPARE(editor.getWidget()->findChildren<QLineEdit*>("m_popupLine").size(), 6);
        QStringList texts;
        for (int i = 0; i < 6; ++i)
            texts << cell(rig, i)->text();
        QCOMPARE(texts.join(QLatin1Char(' ')), QStringLiteral("-1 -2 -3 4 5 6"));
        QCOMPARE(cell(rig, 2)->y(), cell(rig, 0)->y());
        QVERIFY(cell(rig, 3)->y() > cell(rig, 0)->y());
        QCOMPARE(cell(rig, 3)->x(), cell(rig, 0)->x());
    }

    void aMatrixIsSixteenLinesRowByRow()
    {
        DvSFMatrixWidget editor;
        EditorRig rig(editor, "sfMatrix");
        rig.node->sfMatrix.setValue(
            SbMatrix(1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 1e-7F, 1.23456788F));
        EditorRig::runSensors();
        open(rig);
        QCOMPARE(editor.getWidget()->findChildren<QLineEdit*>("m_popupLine").size(), 16);
        QCOMPARE(cell(rig, 3)->text(), QStringLiteral("4"));
        QCOMPARE(cell(rig, 4)->text(), QStringLiteral("5"));
        QVERIFY(cell(rig, 4)->y() > cell(rig, 3)->y());
        QCOMPARE(cell(rig, 14)->text(), QStringLiteral("1e-07"));
        QCOMPARE(cell(rig, 15)->text(), QStringLiteral("1.23457"));
    }

    void anEditOfOneElementLeavesTheOthersToTheLastBit()
    {
        DvSFMatrixWidget editor;
        EditorRig rig(editor, "sfMatrix");
        SbMatrix matrix = SbMatrix::identity();
        matrix[3][3] = 1.23456788F;
        rig.node->sfMatrix.setValue(matrix);
        EditorRig::runSensors();
        open(rig);
        EditorRig::type(cell(rig, 1), QStringLiteral("5"));
        QTest::keyClick(cell(rig, 1), Qt::Key_Return);
        matrix[0][1] = 5.0F;
        QVERIFY(rig.node->sfMatrix.getValue() == matrix);
        QCOMPARE(rig.host.services.count(), 1);
    }

    void theLineTakesTheWholeTextOnReturn()
    {
        DvSFBox3sWidget editor;
        EditorRig rig(editor, "sfBox3s");
        QCOMPARE(line(rig)->text(), QStringLiteral("-1 -2 -3 4 5 6"));
        EditorRig::type(line(rig), QStringLiteral("0 0 0 1 2 3"));
        QCOMPARE(rig.text(), QStringLiteral("-1 -2 -3 4 5 6")); // not while typing
        QTest::keyClick(line(rig), Qt::Key_Return);
        rig.leave();
        EditorRig::runSensors();
        QCOMPARE(rig.text(), QStringLiteral("0 0 0 1 2 3"));
        QCOMPARE(rig.host.services.count(), 1);
        open(rig);
        QCOMPARE(cell(rig, 5)->text(), QStringLiteral("3"));
    }

    void openingCommitsWhatWasTypedIntoTheLine()
    {
        DvSFBox3sWidget editor;
        EditorRig rig(editor, "sfBox3s");
        EditorRig::type(line(rig), QStringLiteral("0 0 0 1 2 3"));
        button(rig)->setFocus();
        open(rig);
        QCOMPARE(rig.text(), QStringLiteral("0 0 0 1 2 3"));
        QCOMPARE(rig.host.services.count(), 1);
        QTest::keyClick(popup(rig), Qt::Key_Escape);
        QCOMPARE(rig.host.services.count(), 1);
    }

    void textThatIsNoNumberCountsAsZero()
    {
        DvSFMatrixWidget editor;
        EditorRig rig(editor, "sfMatrix");
        open(rig);
        cell(rig, 0)->setText(QStringLiteral("wood"));
        cell(rig, 0)->setModified(true);
        editor.applyChanges();
        QCOMPARE(rig.node->sfMatrix.getValue()[0][0], 0.0F);
    }

    void aBoxTakesNothingBeyondItsType()
    {
        DvSFBox3sWidget editor;
        EditorRig rig(editor, "sfBox3s");
        open(rig);
        const auto* const validator = qobject_cast<const QIntValidator*>(cell(rig, 0)->validator());
        QVERIFY(validator);
        QCOMPARE(validator->bottom(), -32768);
        QCOMPARE(validator->top(), 32767);
        EditorRig::type(cell(rig, 5), QStringLiteral("40000"));
        QTest::keyClick(cell(rig, 5), Qt::Key_Return);
        EditorRig::runSensors();
        QCOMPARE(rig.text(), QStringLiteral("-1 -2 -3 4 5 32767"));
        QCOMPARE(cell(rig, 5)->text(), QStringLiteral("32767"));
    }

    void keepsTheNewValueWhenItIsUndone()
    {
        DvSFBox3sWidget editor;
        EditorRig rig(editor, "sfBox3s");
        open(rig);
        EditorRig::type(cell(rig, 0), QStringLiteral("-9"));
        QTest::keyClick(cell(rig, 0), Qt::Key_Return);
        rig.host.services.undo(0);
        QCOMPARE(rig.text(), QStringLiteral("-9 -2 -3 4 5 6"));
    }
};

TAVRIK_TEST_MAIN(tst_DvPopupWidget)
#include "tst_DvPopupWidget.moc"
