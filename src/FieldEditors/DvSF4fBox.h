#pragma once

#include "FieldEditors/DvSFLinesWidget.h"

/** Four labelled lines, for the values that are made of four numbers. */
class DvSF4fBox : public DvSFLinesWidget
{
    Q_OBJECT

public:
    explicit DvSF4fBox(std::vector<const char*> labels,
                       const QString& objectName = QStringLiteral("DvSF4fBox"));
};
