#include "FieldEditors/DvRealValidator.h"

#include <QLocale>
#include <QRegularExpression>

#include <cmath>

namespace {

constexpr double s_largestFloat = 3.4028234663852886e+38;
constexpr int s_floatDecimals = 6;

/** Whether three digits follow the comma and a group of thousands could stand before it. */
bool couldBeThousands(const QString& text)
{
    static const QRegularExpression s_groups(
        QStringLiteral("^[+-]?[1-9][0-9]{0,2},[0-9]{3}(?![0-9])"));
    return s_groups.match(text).hasMatch();
}

QString withDecimalPoint(const QString& text)
{
    const int comma = text.indexOf(QLatin1Char(','));
    if (comma < 0 || text.count(QLatin1Char(',')) > 1 || text.contains(QLatin1Char('.')))
        return text;
    return couldBeThousands(text) ? text : QString(text).replace(comma, 1, QLatin1Char('.'));
}

/**
 * Whether the text is a number below 1, whole or begun, with no more digits after its leading zeros
 * than there may be decimals: general notation writes 0.000123457 so.
 */
bool isSmallNumber(const QString& text, int digits)
{
    static const QRegularExpression s_small(QStringLiteral("^[+-]?0*\\.0*([0-9]*)$"));
    const QRegularExpressionMatch match = s_small.match(text);
    return match.hasMatch() && match.capturedLength(1) <= digits;
}

} // namespace

DvRealValidator::DvRealValidator(QObject* parent)
    : DvRealValidator(-s_largestFloat, s_largestFloat, s_floatDecimals, parent)
{}

DvRealValidator::DvRealValidator(double bottom, double top, int decimals, QObject* parent)
    : QDoubleValidator(bottom, top, decimals, parent)
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator | QLocale::OmitGroupSeparator);
    setLocale(locale);
}

QValidator::State DvRealValidator::validate(QString& text, int& position) const
{
    text = withDecimalPoint(text);
    State state = QDoubleValidator::validate(text, position);
    if (state == Invalid && isSmallNumber(text, decimals()) && text.toDouble() >= bottom() &&
        text.toDouble() <= top())
        state = Acceptable;
    return m_clamped && state != Acceptable ? validateBeyond(text, state) : state;
}

QValidator::State DvRealValidator::validateBeyond(const QString& text, State state) const
{
    // Qt refuses a minus at once where the range has no negative numbers.
    if (state == Invalid && bottom() >= 0.0 && text.startsWith(QLatin1Char('-'))) {
        QString amount = text.mid(1);
        int position = 0;
        state = QDoubleValidator::validate(amount, position);
    }
    if (state == Invalid)
        return Invalid;
    bool parsed = false;
    const double number = text.toDouble(&parsed);
    return parsed || std::isinf(number) ? Acceptable : Intermediate;
}
