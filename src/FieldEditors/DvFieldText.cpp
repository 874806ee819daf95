#include "FieldEditors/DvFieldText.h"

#include <QTextCodec>

QString DvFieldText::toQString(const SbString& text)
{
    const QByteArray bytes(text.getString(), text.getLength());
    // A byte order mark is a character of the text like any other; dropped, a commit would lose it.
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString utf8 = QTextCodec::codecForName("UTF-8")->toUnicode(bytes, bytes.size(), &state);
    const bool isUtf8 = state.invalidChars == 0 && state.remainingChars == 0;
    return isUtf8 ? utf8 : QString::fromLatin1(bytes);
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
