#include "FieldEditors/SFWidgets/DvSFNameWidget.h"

#include "FieldEditors/DvLineEdit.h"
#include "FieldEditors/DvNameValidator.h"

DvSFNameWidget::DvSFNameWidget() : DvSFTextWidget(QStringLiteral("DvSFNameWidget")) {}

void DvSFNameWidget::buildEditor(QHBoxLayout& editLayout)
{
    DvSFTextWidget::buildEditor(editLayout);
    line().setValidator(new DvNameValidator(&line()));
}
