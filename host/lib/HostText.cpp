#include "lib/HostText.h"

#include <TvkText.h>

#include <Inventor/SbName.h>
#include <Inventor/SbString.h>
#include <Inventor/misc/SoBase.h>

QString HostText::fromBytes(const char* bytes)
{
    return TvkText::fromBytes(QByteArray::fromRawData(bytes, int(qstrlen(bytes))));
}

QString HostText::fromCoin(const SbString& text)
{
    return fromBytes(text.getString());
}

QString HostText::fromCoin(const SbName& name)
{
    return fromBytes(name.getString());
}

QString HostText::title(const SoBase* base)
{
    if (!base)
        return QStringLiteral("NULL");
    const QString type = fromCoin(base->getTypeId().getName());
    const QString name = fromCoin(base->getName());
    return name.isEmpty() ? type : type + QLatin1Char(' ') + name;
}
