#include "lib/HostText.h"

#include <Inventor/SbName.h>
#include <Inventor/SbString.h>
#include <Inventor/misc/SoBase.h>

#include <QTextCodec>

QString HostText::fromBytes(const char* bytes)
{
    static QTextCodec* const codec = QTextCodec::codecForName("UTF-8");
    const QByteArray text = QByteArray::fromRawData(bytes, int(qstrlen(bytes)));
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString utf8 = codec->toUnicode(text.constData(), text.size(), &state);
    const bool valid = state.invalidChars == 0 && state.remainingChars == 0;
    return valid ? utf8 : QString::fromLatin1(text);
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
