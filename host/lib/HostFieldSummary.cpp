#include "lib/HostFieldSummary.h"

#include "lib/HostFullPath.h"
#include "lib/HostText.h"
#include "scenegraph/SoFieldText.h"

#include <Inventor/SbString.h>
#include <Inventor/SoPath.h>
#include <Inventor/engines/SoEngine.h>
#include <Inventor/fields/SoFields.h>
#include <Inventor/nodes/SoNode.h>

#include <QStringList>

namespace {

QString oneLine(const SbString& text)
{
    QStringList lines = HostText::fromCoin(text).split(QLatin1Char('\n'));
    for (QString& line : lines)
        line = line.trimmed();
    return lines.join(QLatin1Char(' ')).trimmed();
}

QString pathTitle(const SoPath* path)
{
    const SoNode* tail = path ? HostFullPath::tail(*path) : nullptr;
    if (!tail)
        return HostText::title(path);
    return QStringLiteral("Path to ") + HostText::title(tail);
}

QString sizes(std::initializer_list<int> numbers)
{
    QStringList texts;
    for (int number : numbers)
        texts << QString::number(number);
    return texts.join(QStringLiteral(" x "));
}

QString imageText(const SoSFImage& field)
{
    SbVec2s size(0, 0);
    int components = 0;
    field.getValue(size, components);
    return sizes({size[0], size[1], components});
}

QString image3Text(const SoSFImage3& field)
{
    SbVec3s size(0, 0, 0);
    int components = 0;
    field.getValue(size, components);
    return sizes({size[0], size[1], size[2], components});
}

template <class Field>
const Field* as(const SoField& field)
{
    return field.isOfType(Field::getClassTypeId()) ? static_cast<const Field*>(&field) : nullptr;
}

QString singleText(SoField& field)
{
    if (const auto* const node = as<SoSFNode>(field))
        return HostText::title(node->getValue());
    if (const auto* const path = as<SoSFPath>(field))
        return pathTitle(path->getValue());
    if (const auto* const engine = as<SoSFEngine>(field))
        return HostText::title(engine->getValue());
    if (const auto* const image = as<SoSFImage>(field))
        return imageText(*image);
    if (const auto* const image3 = as<SoSFImage3>(field))
        return image3Text(*image3);
    SbString text;
    SoFieldText::get(&field, text);
    const QString line = oneLine(text);
    const auto* const number = as<SoSFEnum>(field);
    // A value that has no name is written as nothing.
    return line.isEmpty() && number ? QString::number(number->getValue()) : line;
}

QString valueText(SoMField& field, int row)
{
    if (const auto* const nodes = as<SoMFNode>(field))
        return HostText::title((*nodes)[row]);
    if (const auto* const paths = as<SoMFPath>(field))
        return pathTitle((*paths)[row]);
    if (const auto* const engines = as<SoMFEngine>(field))
        return HostText::title((*engines)[row]);
    SbString text;
    SoFieldText::get1(&field, row, text);
    const QString line = oneLine(text);
    const auto* const numbers = as<SoMFEnum>(field);
    return line.isEmpty() && numbers ? QString::number((*numbers)[row]) : line;
}

QString multipleText(SoMField& field)
{
    const int count = field.getNum();
    QString text = QStringLiteral("[%1]").arg(count);
    for (int row = 0; row < count && text.size() <= HostFieldSummary::s_maximalLength; ++row)
        text += (row == 0 ? QStringLiteral(" ") : QStringLiteral(", ")) + valueText(field, row);
    return text;
}

} // namespace

QString HostFieldSummary::text(SoField& field)
{
    const bool isMultiple = field.isOfType(SoMField::getClassTypeId());
    QString text = isMultiple ? multipleText(static_cast<SoMField&>(field)) : singleText(field);
    if (text.size() <= s_maximalLength)
        return text;
    return text.left(s_maximalLength - 1) + QChar(0x2026);
}
