#include "lib/HostFieldPath.h"

#include "lib/HostText.h"

#include <Inventor/SoDB.h>
#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldContainer.h>

namespace {
QString quoted(const SbName& name)
{
    return QLatin1Char('"') + HostText::fromCoin(name) + QLatin1Char('"');
}

QString typeText(SoType type)
{
    const QString name = HostText::fromCoin(type.getName());
    const bool prefixed =
        name.size() > 2 && name.startsWith(QLatin1String("So")) && name.at(2).isUpper();
    return prefixed ? name.mid(2) : name;
}

QString containerText(const SoFieldContainer& container)
{
    const QString type = typeText(container.getTypeId());
    const SbName name = container.getName();
    return name.getLength() > 0 ? type + QLatin1Char(' ') + quoted(name) : type;
}
} // namespace

QString HostFieldPath::text(const SoField* field)
{
    if (!field)
        return {};
    const SoFieldContainer* container = field->getContainer();
    SbName name;
    if (!container || !container->getFieldName(field, name))
        return typeText(field->getTypeId());
    if (SoDB::getGlobalField(name) == field)
        return QStringLiteral("GlobalField ") + quoted(name);
    return containerText(*container) + QLatin1Char('.') + HostText::fromCoin(name);
}
