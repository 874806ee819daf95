#pragma once

#include <QImage>
#include <QLabel>

class SoSFImage;

/** Shows an SoSFImage as a picture, at most 256 pixels wide and high. */
class DvSFImageLabel final : public QLabel
{
    Q_OBJECT

public:
    static constexpr int largestSide = 256;

    explicit DvSFImageLabel(QWidget* parent);

    /** Nothing is shown for an empty image or one whose components are not 1 to 4. */
    void showImage(const SoSFImage& image);

    /** The picture of an image, right way up; null where there is none to show. */
    static QImage toQImage(const SoSFImage& image);
};
