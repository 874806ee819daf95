#include "tests/support/TestMain.h"

#include "FieldEditors/DvRowHeader.h"

#include <QTableWidget>
#include <QtTest>

class tst_DvRowHeader : public QObject
{
    Q_OBJECT

private:
    /** How wide the row numbers of a table of so many rows are. */
    static int widthFor(int rows)
    {
        QTableWidget table(rows, 1);
        table.setVerticalHeader(new DvRowHeader(&table));
        return table.verticalHeader()->sizeHint().width();
    }

private slots:
    void itStandsBesideTheRowsAndSelectsThem()
    {
        const DvRowHeader header(nullptr);
        QCOMPARE(header.orientation(), Qt::Vertical);
        QVERIFY(header.sectionsClickable());
        QVERIFY(header.highlightSections());
    }

    void theRowsHaveOneHeightThatNoTextDecides()
    {
        QTableWidget table(3, 1);
        auto* const header = new DvRowHeader(&table);
        table.setVerticalHeader(header);
        QCOMPARE(header->sectionResizeMode(0), QHeaderView::Fixed);
        table.setItem(1, 0, new QTableWidgetItem(QStringLiteral("one\ntwo\nthree\nfour\nfive")));
        for (int row = 0; row < 3; ++row)
            QCOMPARE(header->sectionSize(row), header->defaultSectionSize());
    }

    void itIsAsWideAsItsLargestNumber()
    {
        const int digits = QFontMetrics(QHeaderView(Qt::Vertical).font())
                               .horizontalAdvance(QStringLiteral("1000000"));
        QVERIFY(widthFor(1000000) >= digits);
        QVERIFY(widthFor(1000000) > widthFor(1000));
        QVERIFY(widthFor(1000) > widthFor(9));
        // Between them no digit comes in.
        QCOMPARE(widthFor(888), widthFor(800));
    }

    void anEmptyTableHasOneToo()
    {
        QTableWidget table(0, 1);
        auto* const header = new DvRowHeader(&table);
        table.setVerticalHeader(header);
        QVERIFY(header->sizeHint().isValid());
    }

    void itFollowsRowsThatComeAndGo()
    {
        QTableWidget table(9, 1);
        auto* const header = new DvRowHeader(&table);
        table.setVerticalHeader(header);
        const int narrow = header->sizeHint().width();
        table.setRowCount(100000);
        QVERIFY(header->sizeHint().width() > narrow);
        table.setRowCount(9);
        QCOMPARE(header->sizeHint().width(), narrow);
    }
};

TAVRIK_TEST_MAIN(tst_DvRowHeader)
#include "tst_DvRowHeader.moc"
