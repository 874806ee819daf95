#pragma once

#include <QString>

class SoField;

/** Where a field stands and where its value comes from, in words. */
namespace HostFieldOrigin {

/** The field's name in its container; empty when it has none. */
QString name(SoField& field);
/** The fields and the engine output that it is connected from, a line each. */
QString connections(SoField& field);

} // namespace HostFieldOrigin
