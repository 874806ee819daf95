#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/MFWidgets/DvMFVec2i32Widget.h"
#include "FieldEditors/MFWidgets/DvMFVec2sWidget.h"

#include <QValidator>

/** The two editors of pairs of integers. */
class tst_DvMFVec2sWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void keepsTheKindThatTheDelegateWasMadeWith()
    {
        DvMFVec2sWidget editor;
        const TableRig rig(editor, "mfVec2s");
        QCOMPARE(rig.table().delegate().valueKind(), 0);
        rig.openCell(0, 0);
        QVERIFY(!rig.openLine()->validator());
    }

    void aComponentOf16BitsIsWritten_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QByteArray>("row");
        QTest::newRow("the smallest") << "-32768" << QByteArray("-32768 2");
        QTest::newRow("the largest") << "32767" << QByteArray("32767 2");
        // Without a validator anything can be typed.
        QTest::newRow("too large a one") << "40000" << QByteArray("32767 2");
        QTest::newRow("none at all") << "word" << QByteArray("0 2");
    }
    void aComponentOf16BitsIsWritten()
    {
        QFETCH(QString, typed);
        QFETCH(QByteArray, row);
        DvMFVec2sWidget editor;
        const TableRig rig(editor, "mfVec2s");
        rig.enter(0, 0, typed);
        QCOMPARE(rig.rows()[0], row);
        TableRig::runSensors();
        QCOMPARE(rig.table().item(0, 0)->text(), QString(row.split(' ').first()));
    }

    void keepsTheSmallestNumberOutOfThoseOf32Bits()
    {
        DvMFVec2i32Widget editor;
        const TableRig rig(editor, "mfVec2i32");
        rig.enter(0, 0, QStringLiteral("-2147483647"));
        QCOMPARE(rig.rows()[0], QByteArray("-2147483647 2"));
        rig.openCell(1, 0);
        QString smallest = QStringLiteral("-2147483648");
        int position = 0;
        QVERIFY(rig.openLine()->validator()->validate(smallest, position) !=
                QValidator::Acceptable);
    }

    void aNumberBeyond32BitsShowsAndDoesNotReachTheField()
    {
        DvMFVec2i32Widget editor;
        const TableRig rig(editor, "mfVec2i32");
        rig.openCell(0, 1);
        rig.openLine()->setText(QStringLiteral("2147483650"));
        rig.openLine()->setModified(true);
        QTest::keyClick(rig.openLine(), Qt::Key_Return);
        TableRig::settle();
        QCOMPARE(rig.rows()[0], QByteArray("1 2"));
        QCOMPARE(rig.host.services.count(), 0);
        QCOMPARE(rig.table().item(0, 1)->text(), QStringLiteral("2147483650"));
    }
};

TAVRIK_TEST_MAIN(tst_DvMFVec2sWidget)
#include "tst_DvMFVec2sWidget.moc"
