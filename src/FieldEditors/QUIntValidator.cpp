#include "FieldEditors/QUIntValidator.h"

QUIntValidator::QUIntValidator(unsigned bottom, unsigned top, QObject* parent)
    : QValidator(parent), m_bottom(bottom), m_top(top)
{}

void QUIntValidator::setRange(unsigned bottom, unsigned top)
{
    if (m_bottom == bottom && m_top == top)
        return;
    m_bottom = bottom;
    m_top = top;
    emit changed();
}

QValidator::State QUIntValidator::validate(QString& text, int&) const
{
    if (text.isEmpty())
        return Acceptable;
    bool parsed = false;
    const unsigned number = text.toUInt(&parsed, 10);
    if (!parsed)
        return Invalid;
    return number < m_bottom || number > m_top ? Intermediate : Acceptable;
}
