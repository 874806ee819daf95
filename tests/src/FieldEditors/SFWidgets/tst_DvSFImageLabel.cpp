#include "tests/support/ImageFields.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFImageLabel.h"

class tst_DvSFImageLabel : public QObject
{
    Q_OBJECT

private:
    static QImage pictureOf(int width, int height, int components)
    {
        SoSFImage field;
        setCountingImage(field, width, height, components);
        return DvSFImageLabel::toQImage(field);
    }

    /** The size of what the label shows. */
    static QSize shownSize(int width, int height, int components = 1)
    {
        SoSFImage field;
        setCountingImage(field, width, height, components);
        DvSFImageLabel label(nullptr);
        label.showImage(field);
        return label.pixmap(Qt::ReturnByValue).size();
    }

private slots:
    void tellsItsName()
    {
        const DvSFImageLabel label(nullptr);
        QCOMPARE(label.objectName(), QStringLiteral("pixmapLabel"));
    }

    void oneComponentIsGreyFromAPalette()
    {
        const QImage picture = pictureOf(16, 16, 1);
        QCOMPARE(picture.format(), QImage::Format_Indexed8);
        QCOMPARE(picture.colorCount(), 256);
        for (int i = 0; i < 256; ++i)
            QCOMPARE(picture.color(i), qRgb(i, i, i));
        QCOMPARE(picture.pixelIndex(5, 15), 5); // the field's first row is the picture's last
        QCOMPARE(picture.pixel(5, 0), qRgb(245, 245, 245));
    }

    void twoComponentsAreGreyAndAlpha()
    {
        const QImage picture = pictureOf(2, 2, 2);
        QCOMPARE(picture.depth(), 32);
        QCOMPARE(picture.pixel(1, 1), qRgba(2, 2, 2, 3));
        QCOMPARE(picture.pixel(0, 0), qRgba(4, 4, 4, 5));
    }

    void threeComponentsAreRedGreenAndBlue()
    {
        const QImage picture = pictureOf(2, 2, 3);
        QCOMPARE(picture.depth(), 32);
        QCOMPARE(picture.pixel(0, 1), qRgb(0, 1, 2));
        QCOMPARE(picture.pixel(1, 0), qRgb(9, 10, 11));
    }

    void fourComponentsHaveAlphaToo()
    {
        const QImage picture = pictureOf(2, 2, 4);
        QCOMPARE(picture.depth(), 32);
        QCOMPARE(picture.pixel(0, 1), qRgba(0, 1, 2, 3));
        QCOMPARE(picture.pixel(1, 0), qRgba(12, 13, 14, 15));
    }

    void theRowsAreTurnedOverAtEveryWidth_data()
    {
        QTest::addColumn<int>("components");
        for (int components = 1; components <= 4; ++components)
            QTest::addRow("%d components", components) << components;
    }

    /** Rows of an odd number of bytes: a picture's rows are aligned, a field's are not. */
    void theRowsAreTurnedOverAtEveryWidth()
    {
        QFETCH(int, components);
        for (int width = 1; width <= 5; ++width) {
            const QImage picture = pictureOf(width, 3, components);
            QCOMPARE(picture.size(), QSize(width, 3));
            for (int row = 0; row < 3; ++row)
                QCOMPARE(qRed(picture.pixel(0, 2 - row)), row * width * components);
        }
    }

    void otherNumbersOfComponentsGiveNoPicture()
    {
        QVERIFY(pictureOf(2, 2, 5).isNull());
        QVERIFY(pictureOf(2, 2, 0).isNull());
        QCOMPARE(shownSize(2, 2, 5), QSize(0, 0));
    }

    void anEmptyImageGivesNoPicture()
    {
        QVERIFY(DvSFImageLabel::toQImage(SoSFImage()).isNull());
        QVERIFY(pictureOf(0, 0, 3).isNull());
        QVERIFY(pictureOf(0, 4, 3).isNull());
        QVERIFY(pictureOf(4, 0, 3).isNull());
    }

    void aSmallPictureIsShownPixelForPixel()
    {
        QCOMPARE(shownSize(1, 1), QSize(1, 1));
        QCOMPARE(shownSize(256, 256), QSize(256, 256));
        QCOMPARE(shownSize(3, 200, 4), QSize(3, 200));
    }

    void aLargePictureIsShownWholeInItsProportions()
    {
        QCOMPARE(shownSize(512, 256), QSize(256, 128));
        QCOMPARE(shownSize(1000, 10), QSize(256, 2));
        QCOMPARE(shownSize(100, 400, 3), QSize(64, 256));
        QCOMPARE(shownSize(32767, 1), QSize(256, 1));
        QCOMPARE(shownSize(1, 32767, 4), QSize(1, 256));
    }

    void anImageWithoutAPictureClearsTheOneBefore()
    {
        SoSFImage field;
        setCountingImage(field, 4, 4, 3);
        DvSFImageLabel label(nullptr);
        label.showImage(field);
        QVERIFY(!label.pixmap(Qt::ReturnByValue).isNull());
        label.showImage(SoSFImage());
        QVERIFY(label.pixmap(Qt::ReturnByValue).isNull());
    }
};

TAVRIK_TEST_MAIN(tst_DvSFImageLabel)
#include "tst_DvSFImageLabel.moc"
