#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/MFWidgets/DvMFMatrixWidget.h"
#include "FieldEditors/MFWidgets/DvTablePopupLineEdit.h"
#include "FieldEditors/TvkMFSetValueCommand.h"

#include <QGridLayout>
#include <QPushButton>

class tst_DvMFMatrixWidget : public QObject
{
    Q_OBJECT

private:
    static QWidget* popup(const TableRig& rig) { return rig.find<QWidget>("m_popupFrame"); }

    static QList<QLineEdit*> lines(const TableRig& rig)
    {
        return rig.editor.getWidget()->findChildren<QLineEdit*>(QStringLiteral("m_popupLine"));
    }

    static QString numbers(const TableRig& rig)
    {
        QStringList texts;
        for (const QLineEdit* line : lines(rig))
            texts << line->text();
        return texts.join(QLatin1Char(' '));
    }

    static void openAt(const TableRig& rig, int row)
    {
        rig.table().setCurrentCell(row, 0);
        rig.click("m_editButton");
    }

    static void type(const TableRig& rig, int element, const char* text)
    {
        QLineEdit* const line = lines(rig)[element];
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, QString::fromLatin1(text));
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void theButtonShowsTheCurrentRowAndHidesItAgain()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        QVERIFY(!popup(rig)->isVisible());
        openAt(rig, 0);
        QVERIFY(popup(rig)->isVisible());
        QCOMPARE(numbers(rig), QStringLiteral("1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16"));
        rig.click("m_editButton");
        QVERIFY(!popup(rig)->isVisible());
        openAt(rig, 2);
        QCOMPARE(numbers(rig), QStringLiteral("2 0 0 0 0 2 0 0 0 0 2 0 0 0 0 1"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void thePopupIsAGridOfFourByFourLines()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        const auto* const grid = qobject_cast<QGridLayout*>(popup(rig)->layout());
        QCOMPARE(grid->rowCount(), 4);
        QCOMPARE(grid->columnCount(), 4);
        QCOMPARE(lines(rig).size(), 16);
        for (int element = 0; element < 16; ++element) {
            QLineEdit* const line = lines(rig)[element];
            QCOMPARE(grid->itemAtPosition(element / 4, element % 4)->widget(), line);
            QVERIFY(qobject_cast<DvTablePopupLineEdit*>(line));
            QVERIFY(line->alignment().testFlag(Qt::AlignLeft));
            QVERIFY(!line->accessibleName().isEmpty());
        }
    }

    void itsLinesHaveRoomForANumberInLettersOfAnySize_data()
    {
        QTest::addColumn<int>("pointSize");
        QTest::newRow("usual") << 9;
        QTest::newRow("large") << 24;
    }
    void itsLinesHaveRoomForANumberInLettersOfAnySize()
    {
        QFETCH(int, pointSize);
        const QFont usual = QApplication::font();
        QApplication::setFont(QFont(usual.family(), pointSize));
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        openAt(rig, 0);
        for (const QLineEdit* line : lines(rig))
            QVERIFY(line->width() > line->fontMetrics().horizontalAdvance("-0.12345"));
        QApplication::setFont(usual);
    }

    void thePopupCanBeTypedIntoAtOnce()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        openAt(rig, 1);
        QCOMPARE(QApplication::focusWidget(), lines(rig)[0]);
        QTest::keyClicks(QApplication::focusWidget(), "9");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(rig.rows()[1], QByteArray("9 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1"));
    }

    void theEditButtonHasAnIconOf16Pixels()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        const QIcon icon = rig.find<QPushButton>("m_editButton")->icon();
        QCOMPARE(icon.availableSizes(), QList<QSize>({QSize(16, 16)}));
    }

    void returnCommitsTheWholeMatrixOnce()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        openAt(rig, 1);
        type(rig, 3, "7.5");
        QTest::keyClick(lines(rig)[3], Qt::Key_Return);
        QCOMPARE(rig.rows()[1], QByteArray("1 0 0 7.5 0 1 0 0 0 0 1 0 0 0 0 1"));
        rig.click("m_editButton");
        rig.leave();
        TableRig::runSensors();
        QCOMPARE(rig.host.services.count(), 1);
        QVERIFY(dynamic_cast<TvkMFSetValueCommand*>(&rig.host.services.at(0)));
        QCOMPARE(rig.shownRow(1), QStringLiteral("1 0 0 7.5 0 1 0 0 0 0 1 0 0 0 0 1"));
    }

    void closingThePopupCommitsWhatWasTyped()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        openAt(rig, 1);
        type(rig, 0, "4");
        popup(rig)->hide();
        QCOMPARE(rig.rows()[1], QByteArray("4 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void elementsThatWereNotTouchedKeepTheirBits()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        SbMatrix matrix = SbMatrix::identity();
        matrix[0][1] = 0.333333343F;
        matrix[3][3] = 1.23456788F;
        rig.node->mfMatrix.set1Value(1, matrix);
        openAt(rig, 1);
        type(rig, 0, "5");
        QTest::keyClick(lines(rig)[0], Qt::Key_Return);
        matrix[0][0] = 5.0F;
        QVERIFY(rig.node->mfMatrix[1] == matrix);
    }

    void escapeTakesBackWhatWasTypedAndThenCloses()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        const QList<QByteArray> before = rig.rows();
        openAt(rig, 1);
        type(rig, 0, "5");
        QTest::keyClick(lines(rig)[0], Qt::Key_Escape);
        QVERIFY(popup(rig)->isVisible());
        QCOMPARE(lines(rig)[0]->text(), QStringLiteral("1"));
        QTest::keyClick(lines(rig)[0], Qt::Key_Escape);
        QVERIFY(!popup(rig)->isVisible());
        QCOMPARE(rig.rows(), before);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void aTextThatIsNoNumberNeverReachesTheField()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        const QList<QByteArray> before = rig.rows();
        openAt(rig, 1);
        type(rig, 0, "-");
        QTest::keyClick(lines(rig)[0], Qt::Key_Return);
        popup(rig)->hide();
        QCOMPARE(rig.rows(), before);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void thePopupFollowsTheFieldAndTheCurrentRow()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        openAt(rig, 0);
        rig.node->mfMatrix.set1Value(0, SbMatrix::identity());
        TableRig::runSensors();
        QCOMPARE(numbers(rig), QStringLiteral("1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1"));
        rig.table().setCurrentCell(2, 0);
        QCOMPARE(numbers(rig), QStringLiteral("2 0 0 0 0 2 0 0 0 0 2 0 0 0 0 1"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void typingForARowNeverChangesAnother()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        QList<QByteArray> expected = rig.rows();
        openAt(rig, 1);
        type(rig, 0, "5");
        rig.table().setCurrentCell(2, 0);
        popup(rig)->hide();
        QCOMPARE(rig.rows()[2], expected[2]);
        QCOMPARE(rig.rows()[0], expected[0]);
    }

    void theRowCanGoWhileThePopupIsOpen()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        openAt(rig, 2);
        type(rig, 0, "5");
        rig.node->mfMatrix.setNum(0);
        TableRig::runSensors();
        popup(rig)->hide();
        QCOMPARE(rig.node->mfMatrix.getNum(), 0);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void aConnectedFieldOpensNoPopup()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        auto* const master = new SoEveryField;
        master->ref();
        rig.node->mfMatrix.connectFrom(&master->mfMatrix);
        TableRig::runSensors();
        openAt(rig, 1);
        QVERIFY(!popup(rig)->isVisible());
        rig.node->mfMatrix.disconnect();
        master->unref();
    }

    void aFieldBeingConnectedWhileThePopupIsOpenIsNotWritten()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        auto* const master = new SoEveryField;
        master->ref();
        openAt(rig, 1);
        type(rig, 0, "5");
        rig.node->mfMatrix.connectFrom(&master->mfMatrix);
        TableRig::runSensors();
        popup(rig)->hide();
        QCOMPARE(rig.rows()[1], QByteArray("1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1"));
        QCOMPARE(rig.host.services.count(), 0);
        rig.node->mfMatrix.disconnect();
        master->unref();
    }

    void theCellsThemselvesAreNotTypedInto()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        QVERIFY(!rig.openCell(1, 0));
    }

    void aDoubleClickOpensThePopup()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        const QPoint middle = rig.table().visualItemRect(rig.table().item(1, 0)).center();
        QTest::mouseClick(rig.table().viewport(), Qt::LeftButton, {}, middle);
        QTest::mouseDClick(rig.table().viewport(), Qt::LeftButton, {}, middle);
        QVERIFY(popup(rig)->isVisible());
        QCOMPARE(numbers(rig), QStringLiteral("1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1"));
    }
};

TAVRIK_TEST_MAIN(tst_DvMFMatrixWidget)
#include "tst_DvMFMatrixWidget.moc"
