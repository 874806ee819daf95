#include "tests/support/TestMain.h"

#include "FieldEditors/DvRowViews.h"

#include <QtTest>

/** How the rows of multiple-value fields are told in columns. */
class tst_DvRowViews : public QObject
{
    Q_OBJECT

private slots:
    void aVectorShowsEachOfItsComponents()
    {
        QCOMPARE(DvVec2fRowView::shownColumns, 2);
        QCOMPARE(DvVec2sRowView::shownColumns, 2);
        QCOMPARE(DvVec2i32RowView::shownColumns, 2);
        QCOMPARE(DvVec3fRowView::shownColumns, 3);
        QCOMPARE(DvVec4fRowView::shownColumns, 4);
    }

    void keepsPlanesAndRotationsAtOneShownColumnOfFour()
    {
        QCOMPARE(DvPlaneRowView::shownColumns, 1);
        QCOMPARE(std::tuple_size<DvPlaneRowView::Numbers>::value, std::size_t(4));
        QCOMPARE(DvQuaternionRowView::shownColumns, 1);
        QCOMPARE(std::tuple_size<DvQuaternionRowView::Numbers>::value, std::size_t(4));
    }

    void aRotationsRowIsItsQuaternion()
    {
        const SbRotation rotation(0.5F, -0.5F, 0.5F, 0.5F);
        QVERIFY((DvQuaternionRowView::numbers(rotation) ==
                 DvQuaternionRowView::Numbers{0.5, -0.5, 0.5, 0.5}));
    }

    void aRealIsShownWithSixDigits()
    {
        QCOMPARE(DvVec3fRowView::text(0.1234567), QStringLiteral("0.123457"));
        QCOMPARE(DvVec3fRowView::text(1e-20), QStringLiteral("1e-20"));
        QCOMPARE(DvVec3fRowView::text(100000.0), QStringLiteral("100000"));
    }

    void anIntegerIsShownWithAllItsDigits()
    {
        QCOMPARE(DvVec2i32RowView::text(-2147483648.0), QStringLiteral("-2147483648"));
        QCOMPARE(DvVec2i32RowView::text(2147483647.0), QStringLiteral("2147483647"));
        QCOMPARE(DvVec2sRowView::text(-32768.0), QStringLiteral("-32768"));
    }

    void aTypedNumberIsRead()
    {
        QCOMPARE(DvVec2fRowView::number(QStringLiteral("2.5")), 2.5);
        QCOMPARE(DvVec2fRowView::number(QStringLiteral("-1e3")), -1000.0);
        QCOMPARE(DvVec2i32RowView::number(QStringLiteral("2147483647")), 2147483647.0);
    }

    void aTextThatDoesNotConvertIsZero()
    {
        for (const char* text : {"", "word", "1e999", "1,5"}) {
            QCOMPARE(DvVec2fRowView::number(QLatin1String(text)), 0.0);
            QCOMPARE(DvVec2sRowView::number(QLatin1String(text)), 0.0);
        }
    }
};

TAVRIK_TEST_MAIN(tst_DvRowViews)
#include "tst_DvRowViews.moc"
