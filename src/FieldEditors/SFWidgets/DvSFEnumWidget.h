#pragma once

#include "FieldEditors/DvSFieldWidget.h"

class DvEnumBox;

/** Edits an SoSFEnum: a combo box with the field's names. */
class DvSFEnumWidget final : public DvSFieldWidget
{
    Q_OBJECT

public:
    using DvSFieldWidget::applyChanges;

    DvSFEnumWidget();

    /** A value that has no name is shown as its number, greyed; choosing a name replaces it. */
    void refresh() override;
    void applyChanges() override;

protected:
    void buildEditor(QHBoxLayout& editLayout) override;
    void fieldReplaced() override;
    void fieldReleased() override;

private:
    DvEnumBox* m_comboBox = nullptr;
};
