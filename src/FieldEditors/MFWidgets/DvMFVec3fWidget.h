#pragma once

#include "FieldEditors/DvMFNumbersWidget.h"
#include "FieldEditors/DvRowViews.h"

/** Edits an SoMFVec3f. */
class DvMFVec3fWidget : public DvMFNumbersWidget<DvVec3fRowView>
{
    Q_OBJECT

public:
    explicit DvMFVec3fWidget(const char* typeName = "MFVec3f",
                             const QString& objectName = QStringLiteral("DvMFVec3fWidget"));
};
