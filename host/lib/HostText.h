#pragma once

#include "TavrikHostExport.h"

#include <QString>

class SbName;
class SbString;
class SoBase;

/** Coin's texts as Qt's, and how the host names Coin's objects. */
namespace HostText {

/** Coin's texts are bytes, by habit UTF-8; bytes that are none are shown as Latin-1. */
TAVRIKHOST_EXPORT QString fromBytes(const char* bytes);
TAVRIKHOST_EXPORT QString fromCoin(const SbString& text);
TAVRIKHOST_EXPORT QString fromCoin(const SbName& name);
/** "Cube", or "Cube lamp" for an object that has a name; "NULL" for none. */
TAVRIKHOST_EXPORT QString title(const SoBase* base);

} // namespace HostText
