#include "FieldEditors/DvIntValidator.h"

#include "FieldEditors/DvIntegerText.h"

#include <QLocale>

DvIntValidator::DvIntValidator(QObject* parent) : QIntValidator(parent)
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator | QLocale::OmitGroupSeparator);
    setLocale(locale);
}

QValidator::State DvIntValidator::validate(QString& text, int& position) const
{
    const State state = QIntValidator::validate(text, position);
    const std::optional<qint64> number = DvIntegerText::parse(text, 10);
    const bool isBeyond = number && (*number < bottom() || *number > top());
    return isBeyond ? Acceptable : state;
}
