#pragma once

#include "FieldEditors/DvSFieldWidget.h"

class DvSFImageLabel;

/** Shows an SoSFImage. It never writes the field. */
class DvSFImageWidget final : public DvSFieldWidget
{
    Q_OBJECT

public:
    DvSFImageWidget();

    void refresh() override;

protected:
    void buildEditor(QHBoxLayout& editLayout) override;

private:
    QFrame* m_imageBox = nullptr;
    DvSFImageLabel* m_pixmapLabel = nullptr;
};
