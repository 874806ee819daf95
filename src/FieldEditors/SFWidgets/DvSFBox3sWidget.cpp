#include "FieldEditors/SFWidgets/DvSFBox3sWidget.h"

#include "FieldEditors/DvIntValidator.h"

#include <limits>

DvSFBox3sWidget::DvSFBox3sWidget() : DvSFNumbersWidget(2, 3, QStringLiteral("DvSFBox3sWidget")) {}

QValidator* DvSFBox3sWidget::newValidator(QObject* parent) const
{
    auto* const validator = new DvIntValidator(parent);
    validator->setRange(std::numeric_limits<short>::min(), std::numeric_limits<short>::max());
    return validator;
}
