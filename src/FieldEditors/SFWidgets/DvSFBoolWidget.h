#pragma once

#include "FieldEditors/DvSFieldWidget.h"

class QCheckBox;

/** Edits an SoSFBool: one check box. */
class DvSFBoolWidget final : public DvSFieldWidget
{
    Q_OBJECT

public:
    using DvSFieldWidget::applyChanges;

    DvSFBoolWidget();

    void refresh() override;
    void applyChanges() override;

protected:
    void buildEditor(QHBoxLayout& editLayout) override;

private:
    QCheckBox* m_box = nullptr;
};
