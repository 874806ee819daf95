#include "FieldEditors/SFWidgets/DvSFBox3sWidget.h"

#include <QIntValidator>
#include <QLocale>

#include <limits>

DvSFBox3sWidget::DvSFBox3sWidget() : DvSFNumbersWidget(2, 3, QStringLiteral("DvSFBox3sWidget")) {}

QValidator* DvSFBox3sWidget::newValidator(QObject* parent) const
{
    auto* const validator = new QIntValidator(std::numeric_limits<short>::min(),
                                              std::numeric_limits<short>::max(), parent);
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    validator->setLocale(locale);
    return validator;
}
