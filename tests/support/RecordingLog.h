#pragma once

#include <TvkExtension.h>

#include <QStringList>

/** Writes down a call of an extension as `name call`. */
inline void noteCall(QStringList& log, const TvkExtension& extension, const QByteArray& call)
{
    log << QString::fromUtf8(extension.getName().getString()) + QLatin1Char(' ') +
               QString::fromUtf8(call);
}
