#include "FieldEditors/DvCellValidators.h"

#include "FieldEditors/DvIntegerText.h"
#include "FieldEditors/DvMFieldTableItemDelegate.h"
#include "FieldEditors/DvRealValidator.h"
#include "FieldEditors/QULongValidator.h"

#include <QIntValidator>

#include <limits>

namespace {

constexpr double s_largestFloat = 3.4028234663852886e38;
constexpr int s_anyDecimals = 1000;

QIntValidator* newIntValidator(int bottom, int top, QObject* parent)
{
    auto* const validator = new QIntValidator(bottom, top, parent);
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    validator->setLocale(locale);
    return validator;
}

} // namespace

QValidator* DvCellValidators::newValidator(int valueKind, QObject* parent)
{
    using Int = std::numeric_limits<int>;
    switch (valueKind) {
    // Kept on purpose: the smallest 16-bit and 32-bit numbers are left out of these two ranges.
    case DvMFieldTableItemDelegate::ShortKind:
        return newIntValidator(-32767, 32767, parent);
    case DvMFieldTableItemDelegate::Int32Kind:
        return newIntValidator(-Int::max(), Int::max(), parent);
    case DvMFieldTableItemDelegate::UShortKind:
        return newIntValidator(0, 65535, parent);
    case DvMFieldTableItemDelegate::IntegerKind:
        return newIntValidator(Int::min(), Int::max(), parent);
    case DvMFieldTableItemDelegate::UIntKind:
        return new QUIntValidator(0, std::numeric_limits<unsigned>::max(), parent);
    case DvMFieldTableItemDelegate::UInt32Kind:
        return new QULongValidator(0, std::numeric_limits<unsigned>::max(), parent);
    case DvMFieldTableItemDelegate::FloatKind:
        return new DvRealValidator(-s_largestFloat, s_largestFloat, 6, parent);
    case DvMFieldTableItemDelegate::DoubleKind:
        return new DvRealValidator(-std::numeric_limits<double>::infinity(),
                                   std::numeric_limits<double>::infinity(), s_anyDecimals, parent);
    default:
        return nullptr;
    }
}

QValidator* DvCellValidators::newEntryValidator(int valueKind, QObject* parent)
{
    if (valueKind == DvMFieldTableItemDelegate::FloatKind)
        return new DvRealValidator(-s_largestFloat, s_largestFloat, s_anyDecimals, parent);
    return newValidator(valueKind, parent);
}

QString DvCellValidators::inBase10(const QString& text)
{
    const std::optional<qint64> number = DvIntegerText::parse(text, DvIntegerText::baseOf(text));
    return number ? QString::number(*number) : text;
}
