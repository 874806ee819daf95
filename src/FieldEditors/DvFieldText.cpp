#include "FieldEditors/DvFieldText.h"

#include <TvkText.h>

QString DvFieldText::toQString(const SbString& text)
{
    return TvkText::fromBytes(QByteArray::fromRawData(text.getString(), text.getLength()));
}

SbString DvFieldText::toSbString(const QString& text)
{
    return {text.toUtf8().constData()};
}

QString DvFieldText::fromReal(double value, int significantDigits)
{
    return QString::number(value, 'g', significantDigits);
}

float DvFieldText::toFloat(const QString& text)
{
    bool parsed = false;
    const float value = text.toFloat(&parsed);
    return parsed ? value : 0.0F;
}
