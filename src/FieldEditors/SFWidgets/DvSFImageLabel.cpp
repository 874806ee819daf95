#include "FieldEditors/SFWidgets/DvSFImageLabel.h"

#include <Inventor/fields/SoSFImage.h>

namespace {

QImage::Format formatFor(int components)
{
    switch (components) {
    case 1:
        return QImage::Format_Indexed8;
    case 3:
        return QImage::Format_RGB32;
    default: // with an alpha component
        return QImage::Format_ARGB32;
    }
}

QRgb colorOf(const unsigned char* pixel, int components)
{
    switch (components) {
    case 2:
        return qRgba(pixel[0], pixel[0], pixel[0], pixel[1]);
    case 3:
        return qRgb(pixel[0], pixel[1], pixel[2]);
    default:
        return qRgba(pixel[0], pixel[1], pixel[2], pixel[3]);
    }
}

void setGreyPalette(QImage& image)
{
    image.setColorCount(256);
    for (int i = 0; i < 256; ++i)
        image.setColor(i, qRgb(i, i, i));
}

void copyRow(QImage& picture, int y, const unsigned char* pixels, int components)
{
    if (components == 1) {
        std::copy(pixels, pixels + picture.width(), picture.scanLine(y));
        return;
    }
    // Which is how Qt hands out the pixels of 32 bits.
    auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(y)); // NOLINT(*-reinterpret-cast)
    for (int x = 0; x < picture.width(); ++x, pixels += components)
        line[x] = colorOf(pixels, components);
}

} // namespace

DvSFImageLabel::DvSFImageLabel(QWidget* parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("pixmapLabel"));
    setAlignment(Qt::AlignCenter);
}

QImage DvSFImageLabel::toQImage(const SoSFImage& image)
{
    SbVec2s size;
    int components = 0;
    const unsigned char* const pixels = image.getValue(size, components);
    if (!pixels || size[0] <= 0 || size[1] <= 0 || components < 1 || components > 4)
        return {};
    QImage picture(size[0], size[1], formatFor(components));
    // Qt has no pictures of more than 2 GB; a field may hold one.
    if (picture.isNull())
        return {};
    if (components == 1)
        setGreyPalette(picture);
    const auto bytesPerRow = static_cast<std::ptrdiff_t>(size[0]) * components;
    // The field's first row is the bottom one of the picture.
    for (int row = 0; row < size[1]; ++row)
        copyRow(picture, size[1] - 1 - row, pixels + row * bytesPerRow, components);
    return picture;
}

void DvSFImageLabel::showImage(const SoSFImage& image)
{
    const QImage picture = toQImage(image);
    const QSize largest(largestSide, largestSide);
    const bool tooLarge = picture.width() > largestSide || picture.height() > largestSide;
    setPixmap(QPixmap::fromImage(
        tooLarge ? picture.scaled(largest, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                 : picture));
}
