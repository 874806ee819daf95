#pragma once

#include "TavrikExtenderAPIExport.h"

#include <QByteArray>
#include <QString>

/** Texts that come as bytes: Coin's strings, what a program writes to its standard streams. */
namespace TvkText {

/** UTF-8 by custom; bytes that are none are read as Latin-1, so that nothing shows as "�". */
TAVRIKEXTENDERAPI_EXPORT QString fromBytes(const QByteArray& bytes);

} // namespace TvkText
