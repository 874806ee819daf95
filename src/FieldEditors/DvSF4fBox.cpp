#include "FieldEditors/DvSF4fBox.h"

DvSF4fBox::DvSF4fBox(std::vector<const char*> labels, const QString& objectName)
    : DvSFLinesWidget(objectName,
                      {nullptr, "SF4FvLayout", "SF4flabel", "SF4fine", "SF4fBoxVSpacing",
                       "SF4fBoxHSpacing", "SF4fBoxHMargin", std::move(labels)})
{}
