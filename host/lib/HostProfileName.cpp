#include "lib/HostProfileName.h"

QString HostProfileName::tidy(const QString& text)
{
    QString name;
    for (const QChar character : text.normalized(QString::NormalizationForm_C).simplified())
        if (character.category() != QChar::Other_Control)
            name.append(character);
    return name.simplified();
}

QByteArray HostProfileName::latin1(const QString& name, int number)
{
    QByteArray text;
    for (const uint character : name.toUcs4())
        text.append(character <= 0xFF ? char(character) : '?');
    if (QString::fromLatin1(text) != name)
        text.append(" (" + QByteArray::number(number) + ')');
    return text;
}
