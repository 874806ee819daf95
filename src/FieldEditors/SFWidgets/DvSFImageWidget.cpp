#include "FieldEditors/SFWidgets/DvSFImageWidget.h"

#include "FieldEditors/SFWidgets/DvSFImageLabel.h"

#include <Inventor/fields/SoSFImage.h>

#include <QHBoxLayout>

#include <algorithm>

DvSFImageWidget::DvSFImageWidget()
    : DvSFieldWidget(DvSlider::NoKind, QStringLiteral("DvSFImageWidget"))
{
    m_handledType = SoSFImage::getClassTypeId();
}

void DvSFImageWidget::buildEditor(QHBoxLayout& editLayout)
{
    m_imageBox = new QFrame(frame());
    m_imageBox->setObjectName(QStringLiteral("m_imageBox"));
    auto* const layout = new QHBoxLayout(m_imageBox);
    layout->setContentsMargins(0, 0, 0, 0);
    m_pixmapLabel = new DvSFImageLabel(m_imageBox);
    m_pixmapLabel->setAccessibleName(tr("Picture"));
    layout->addWidget(m_pixmapLabel);
    editLayout.addWidget(m_imageBox);
}

void DvSFImageWidget::refresh()
{
    if (const auto* image = fieldAs<SoSFImage>()) {
        SbVec2s size;
        int components = 0;
        image->getValue(size, components);
        m_imageBox->setFixedSize(std::min<int>(size[0], DvSFImageLabel::largestSide),
                                 std::min<int>(size[1], DvSFImageLabel::largestSide));
        m_pixmapLabel->showImage(*image);
    }
    DvSFieldWidget::refresh();
}
