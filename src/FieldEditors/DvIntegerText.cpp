#include "FieldEditors/DvIntegerText.h"

namespace {
const QLatin1String s_hexPrefix("0x");
}

int DvIntegerText::baseOf(const QString& text)
{
    if (text.size() >= 3 && text.startsWith(s_hexPrefix))
        return 16;
    return text.size() > 1 && text.startsWith(QLatin1Char('0')) ? 8 : 10;
}

QString DvIntegerText::withoutPrefix(const QString& text, int base)
{
    if (base == 16 && text.startsWith(s_hexPrefix))
        return text.mid(s_hexPrefix.size());
    return base == 8 && text.startsWith(QLatin1Char('0')) ? text.mid(1) : text;
}

QString DvIntegerText::format(qint64 value, int base)
{
    // Qt writes a negative number of any base but 10 as its two's complement.
    const QString digits = QString::number(qAbs(value), base).toUpper();
    return value < 0 ? QLatin1Char('-') + digits : digits;
}
