#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFStringWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec2fWidget.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QScrollBar>

namespace {

/** How many cells of a table have an item. */
int itemCount(const QTableWidget& table)
{
    int count = 0;
    for (int row = 0; row < table.rowCount(); ++row) {
        for (int column = 0; column < table.columnCount(); ++column)
            count += table.item(row, column) ? 1 : 0;
    }
    return count;
}

/** Where a picture has another colour than in its corner. */
QRect inkOf(const QImage& picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

QImage paint(const TableRig& rig, int row, int width, bool isSelected = false)
{
    QImage picture(width, 30, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    QStyleOptionViewItem option;
    option.initFrom(&rig.table());
    option.rect = picture.rect();
    option.state = isSelected ? QStyle::State_Selected : QStyle::State_None;
    rig.table().delegate().paint(&painter, option, rig.table().model()->index(row, 0));
    return picture;
}

} // namespace

class tst_DvMFieldTableView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void aTableOfManyCellsHasAnItemInEach()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.field->setNum(DvMFieldTable::eagerCells / 2);
        TableRig::runSensors();
        QCOMPARE(itemCount(rig.table()), DvMFieldTable::eagerCells);
    }

    void aLargerTableMakesItsItemsAsTheyAreSeen()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.field->setNum(1);
        TableRig::runSensors();
        const int rows = DvMFieldTable::eagerCells / 2 + 1;
        rig.field->setNum(rows);
        TableRig::runSensors();
        rig.table().viewport()->repaint();
        QVERIFY(itemCount(rig.table()) < 200);
        const QTableWidget& base = rig.table();
        QVERIFY(!base.item(5000, 0));
        QCoreApplication::processEvents();
        rig.table().verticalScrollBar()->setValue(5000);
        rig.table().viewport()->repaint();
        QVERIFY(base.item(5000, 0));
    }

    void theTableAnswersAnItemForEveryCellOfItsOwn()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.field->setNum(100000);
        rig.field->set1(99999, "8 9");
        TableRig::runSensors();
        QCOMPARE(rig.table().item(99999, 1)->text(), QStringLiteral("9"));
        QVERIFY(!rig.table().item(100000, 0));
        QVERIFY(!rig.table().item(0, 2));
        QVERIFY(!rig.table().item(-1, 0));
    }

    void aFarCellOfALargeTableIsEdited()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.field->setNum(100000);
        rig.field->set1(70000, "8 9");
        TableRig::runSensors();
        rig.openCell(70000, 1);
        QCOMPARE(rig.openLine()->text(), QStringLiteral("9"));
        rig.leave();
        rig.enter(70000, 1, "10");
        QCOMPARE(rig.rows().at(70000), QByteArray("8 10"));
    }

    void rowsOfALargeTableAreEditedAsOfASmallOne()
    {
        DvMFInt32Widget editor;
        const TableRig rig(editor, "mfInt32");
        rig.field->setNum(100000);
        rig.field->set1(50000, "7");
        TableRig::runSensors();
        rig.table().setCurrentCell(10, 0);
        rig.click("m_addButton");
        TableRig::runSensors();
        QCOMPARE(rig.table().item(50001, 0)->text(), QStringLiteral("7"));
        rig.table().setCurrentCell(10, 0);
        rig.click("m_deleteButton");
        TableRig::runSensors();
        QCOMPARE(rig.table().item(50000, 0)->text(), QStringLiteral("7"));
        QCOMPARE(rig.table().rowCount(), 100000);
        QCOMPARE(rig.accessBox().maximum(), 100000);
    }

    void aRefreshWithoutAViewAsksForNoMillionTexts()
    {
        DvMFInt32Widget editor;
        const TableRig rig(editor, "mfInt32");
        rig.field->setNum(1000000);
        rig.table().setFixedHeight(0);
        QApplication::sendPostedEvents();
        QElapsedTimer timer;
        timer.start();
        TableRig::runSensors();
        rig.field->touch();
        TableRig::runSensors();
        QVERIFY2(timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
    }

    void anOutsideValueIsSeen()
    {
        DvMFInt32Widget editor;
        const TableRig rig(editor, "mfInt32");
        rig.table().viewport()->repaint();
        const QImage before = rig.table().viewport()->grab().toImage();
        rig.field->set1(1, "88888");
        TableRig::runSensors();
        QVERIFY(rig.table().viewport()->grab().toImage() != before);
        rig.field->set1(1, "2");
        TableRig::runSensors();
        QCOMPARE(rig.table().viewport()->grab().toImage(), before);
    }

    void aTextThatFitsStandsInTheMiddle()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        const QRect ink = inkOf(paint(rig, 0, 200));
        QVERIFY(!ink.isEmpty());
        QVERIFY(qAbs(ink.center().x() - 100) <= 2);
        QVERIFY(qAbs(ink.center().y() - 15) <= 5);
    }

    void aLongTextEndsWithDotsWithinItsRoom()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        auto& strings = static_cast<SoMFString&>(*rig.field);
        strings.set1Value(0, "|||||||||||||||||||||||||||||||||||||||||||||||||||||||||||||||||||");
        const QImage picture = paint(rig, 0, 80);
        const QRect ink = inkOf(picture);
        QVERIFY(ink.width() <= 80 - 3);
        // The dots are lower than the letters before them.
        const QRect end = inkOf(picture.copy(ink.right() - 3, 0, 4, 30));
        QVERIFY2(end.height() <= 4, qPrintable(QString::number(end.height())));
    }

    void aCellTooNarrowForItsTextShowsNothingElse()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        for (const int width : {1, 2, 5, 9})
            QCOMPARE(paint(rig, 0, width).size(), QSize(width, 30));
    }

    void aHugeTextIsCutInNoTime()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        const QByteArray huge(1000000, 'm');
        static_cast<SoMFString*>(rig.field)->set1Value(0, huge.constData());
        QElapsedTimer timer;
        timer.start();
        QVERIFY(inkOf(paint(rig, 0, 100)).width() <= 97);
        QVERIFY2(timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
    }

    void aSelectedCellHasTheHighlightColour()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        const QColor highlight = rig.table().palette().color(QPalette::Highlight);
        QCOMPARE(paint(rig, 0, 100, true).pixelColor(2, 2), highlight);
        QCOMPARE(paint(rig, 0, 100, false).pixelColor(2, 2), QColor(Qt::white));
    }
};

TAVRIK_TEST_MAIN(tst_DvMFieldTableView)
#include "tst_DvMFieldTableView.moc"
