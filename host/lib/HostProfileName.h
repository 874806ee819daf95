#pragma once

#include "TavrikHostExport.h"

#include <QString>

/** What a profile may be called, and how its name reaches those who know Latin-1 only. */
namespace HostProfileName {

/** The name without what cannot be seen in it: control characters, spaces at its ends. */
TAVRIKHOST_EXPORT QString tidy(const QString& text);
/**
 * The name in Latin-1, unchanged where that can hold it. Otherwise a question mark stands for each
 * character that it cannot hold, and the profile's number follows, so that two such names differ.
 */
TAVRIKHOST_EXPORT QByteArray latin1(const QString& name, int number);

} // namespace HostProfileName
