#pragma once

class QString;
class SoField;

/** Where a connected field takes its values from, in words for the user. */
namespace DvFieldMaster {

/** Names the master field with its container's type, or the engine. */
QString nameOf(const SoField& field);

} // namespace DvFieldMaster
