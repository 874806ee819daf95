#include "tests/support/TestMain.h"

#include "FieldEditors/AccessButtonPrivate.h"

#include <QSignalSpy>

class tst_AccessButtonPrivate : public QObject
{
    Q_OBJECT

private slots:
    void takesRangeStepAndName()
    {
        const AccessButtonPrivate box(1, 9, 2, nullptr, "rows");
        QCOMPARE(box.minimum(), 1);
        QCOMPARE(box.maximum(), 9);
        QCOMPARE(box.singleStep(), 2);
        QCOMPARE(box.objectName(), QStringLiteral("rows"));
    }

    void withoutARangeItHasNoRow()
    {
        AccessButtonPrivate box(nullptr, "rows");
        QCOMPARE(box.minimum(), 0);
        QCOMPARE(box.maximum(), 0);
        QCOMPARE(box.row(), -1);
    }

    void showsARowsNumberFromOneWithoutASignal()
    {
        AccessButtonPrivate box(1, 9, 1, nullptr, "rows");
        QSignalSpy changed(&box, SIGNAL(valueChanged(int)));
        box.setNewValue(4);
        QCOMPARE(box.value(), 5);
        QCOMPARE(box.row(), 4);
        QCOMPARE(changed.count(), 0);
    }

    void theNumberFollowsTheRowsWithoutASignal()
    {
        AccessButtonPrivate box(1, 9, 1, nullptr, "rows");
        box.setNewValue(8);
        QSignalSpy changed(&box, SIGNAL(valueChanged(int)));
        box.setRowCount(3);
        QCOMPARE(box.value(), 3);
        box.setRowCount(0);
        QCOMPARE(box.minimum(), 0);
        QCOMPARE(box.value(), 0);
        box.setRowCount(2);
        QCOMPARE(box.minimum(), 1);
        QCOMPARE(changed.count(), 0);
    }

    void returnLeadsToTheRowAlsoWhenTheNumberIsTheSame()
    {
        AccessButtonPrivate box(1, 9, 1, nullptr, "rows");
        QSignalSpy changed(&box, SIGNAL(valueChanged(int)));
        QTest::keyClick(&box, Qt::Key_Return);
        QTest::keyClick(&box, Qt::Key_Enter);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.last().first().toInt(), 1);
    }

    void aTypedNumberLeadsThereOnce()
    {
        AccessButtonPrivate box(1, 20, 1, nullptr, "rows");
        QSignalSpy changed(&box, SIGNAL(valueChanged(int)));
        box.selectAll();
        QTest::keyClicks(&box, "12");
        QCOMPARE(changed.count(), 0);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.last().first().toInt(), 12);
    }

    void aTypedNumberIsTheRowBeforeReturnAlready()
    {
        AccessButtonPrivate box(1, 20, 1, nullptr, "rows");
        box.selectAll();
        QTest::keyClicks(&box, "12");
        QCOMPARE(box.row(), 11);
    }

    void otherKeysAreASpinBoxs()
    {
        AccessButtonPrivate box(1, 9, 1, nullptr, "rows");
        QTest::keyClick(&box, Qt::Key_Up);
        QCOMPARE(box.value(), 2);
    }
};

TAVRIK_TEST_MAIN(tst_AccessButtonPrivate)
#include "tst_AccessButtonPrivate.moc"
