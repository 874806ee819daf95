#include "tests/support/TestMain.h"

#include "FieldEditors/DvValueViews.h"

#include <cmath>
#include <limits>

/** Values as numbers and back. */
class tst_DvValueViews : public QObject
{
    Q_OBJECT

private slots:
    void aVectorIsItsComponentsInTheirOrder()
    {
        const SbVec4f vector(1.0F, 2.5F, -3.0F, 1e-7F);
        const DvVec4fView::Numbers numbers = DvVec4fView::numbers(vector);
        QCOMPARE(numbers[1], 2.5);
        QCOMPARE(numbers[3], static_cast<double>(1e-7F));
        QVERIFY(DvVec4fView::value(numbers) == vector);
    }

    void aNumberBeyondAnIntegerComponentIsItsLimit()
    {
        const SbVec2s shorts = DvVec2sView::value({40000.0, -40000.0});
        QCOMPARE(shorts[0], std::numeric_limits<short>::max());
        QCOMPARE(shorts[1], std::numeric_limits<short>::min());
        const SbVec2i32 wide = DvVec2i32View::value({3e9, -3e9});
        QCOMPARE(wide[0], std::numeric_limits<int32_t>::max());
        QCOMPARE(wide[1], std::numeric_limits<int32_t>::min());
    }

    void whatIsNoNumberIsZeroInAnIntegerComponent()
    {
        QCOMPARE(DvVec2sView::value({std::nan(""), 1.0})[0], short(0));
    }

    void everyIntegerComponentComesBack()
    {
        const SbVec2i32 limits(std::numeric_limits<int32_t>::min(),
                               std::numeric_limits<int32_t>::max());
        QVERIFY(DvVec2i32View::value(DvVec2i32View::numbers(limits)) == limits);
    }

    void aPlaneIsItsNormalThenItsDistance()
    {
        const DvPlaneView::Numbers numbers =
            DvPlaneView::numbers(SbPlane(SbVec3f(0.0F, 0.0F, -1.0F), 4.0F));
        QVERIFY((numbers == DvPlaneView::Numbers{0.0, 0.0, -1.0, 4.0}));
    }

    void keepsNormalisingThePlane()
    {
        const SbPlane plane = DvPlaneView::value({0.0, 2.0, 0.0, 3.0});
        QVERIFY(plane.getNormal() == SbVec3f(0.0F, 1.0F, 0.0F));
        QCOMPARE(plane.getDistanceFromOrigin(), 3.0F);
    }

    void aPlaneWithoutANormalKeepsItsZeros()
    {
        const SbPlane plane = DvPlaneView::value({0.0, 0.0, 0.0, 3.0});
        QVERIFY(plane.getNormal() == SbVec3f(0.0F, 0.0F, 0.0F));
        QCOMPARE(plane.getDistanceFromOrigin(), 3.0F);
    }

    void aRotationIsItsAxisThenItsAngleInRadians()
    {
        const DvAxisAngleView::Numbers numbers =
            DvAxisAngleView::numbers(SbRotation(SbVec3f(1.0F, 0.0F, 0.0F), 0.5F));
        QCOMPARE(static_cast<float>(numbers[0]), 1.0F);
        QCOMPARE(static_cast<float>(numbers[1]), 0.0F);
        QCOMPARE(static_cast<float>(numbers[2]), 0.0F);
        QCOMPARE(static_cast<float>(numbers[3]), 0.5F);
    }

    void aRotationMadeOfNumbersTurnsByTheAngle()
    {
        const SbRotation rotation = DvAxisAngleView::value({0.0, 0.0, 2.0, 1.5});
        QVERIFY(rotation.equals(SbRotation(SbVec3f(0.0F, 0.0F, 1.0F), 1.5F), 1e-6F));
    }

    void aBoxIsItsSmallestCornerThenItsLargest()
    {
        const SbBox3s box(-1, -2, -3, 4, 5, 32767);
        const DvBox3sView::Numbers numbers = DvBox3sView::numbers(box);
        QVERIFY((numbers == DvBox3sView::Numbers{-1.0, -2.0, -3.0, 4.0, 5.0, 32767.0}));
        QVERIFY(DvBox3sView::value(numbers) == box);
    }

    void aBoxBeyondTheLimitsEndsAtThem()
    {
        const SbBox3s box = DvBox3sView::value({-1e9, 0.0, 0.0, 1e9, 0.0, 0.0});
        QCOMPARE(box.getMin()[0], std::numeric_limits<short>::min());
        QCOMPARE(box.getMax()[0], std::numeric_limits<short>::max());
    }

    void anEmptyBoxComesBackEmpty()
    {
        const SbBox3s empty;
        QVERIFY(empty.isEmpty());
        QVERIFY(DvBox3sView::value(DvBox3sView::numbers(empty)).isEmpty());
    }

    void aMatrixIsItsElementsRowByRow()
    {
        SbMatrix matrix = SbMatrix::identity();
        matrix[3][0] = 7.0F;
        matrix[0][1] = 5.0F;
        const DvMatrixView::Numbers numbers = DvMatrixView::numbers(matrix);
        QCOMPARE(numbers[1], 5.0);
        QCOMPARE(numbers[12], 7.0);
        QVERIFY(DvMatrixView::value(numbers) == matrix);
    }
};

TAVRIK_TEST_MAIN(tst_DvValueViews)
#include "tst_DvValueViews.moc"
