#include "FieldEditors/DvIntValidator.h"

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
    if (state != Intermediate)
        return state;
    bool parsed = false;
    text.toLongLong(&parsed);
    return parsed ? Acceptable : Intermediate;
}
