#include "FieldEditors/DvIntegerText.h"

#include <algorithm>
#include <limits>

namespace {

const QLatin1String s_hexPrefix("0x");

bool isDigit(QChar character, int base)
{
    bool parsed = false;
    QString(character).toInt(&parsed, base);
    return parsed;
}

} // namespace

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

std::optional<qint64> DvIntegerText::parse(const QString& text, int base)
{
    bool parsed = false;
    const qint64 value = text.toLongLong(&parsed, base);
    if (parsed)
        return value;
    const QString number = text.trimmed();
    const bool isNegative = number.startsWith(QLatin1Char('-'));
    const bool hasSign = isNegative || number.startsWith(QLatin1Char('+'));
    const QString digits = withoutPrefix(hasSign ? number.mid(1) : number, base);
    const auto isOfBase = [base](QChar character) { return isDigit(character, base); };
    if (digits.isEmpty() || !std::all_of(digits.cbegin(), digits.cend(), isOfBase))
        return std::nullopt;
    using Limits = std::numeric_limits<qint64>;
    return isNegative ? Limits::min() : Limits::max();
}

QString DvIntegerText::format(qint64 value, int base)
{
    // Qt writes a negative number of any base but 10 as its two's complement.
    const QString digits = QString::number(qAbs(value), base).toUpper();
    return value < 0 ? QLatin1Char('-') + digits : digits;
}
