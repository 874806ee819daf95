#pragma once

class QString;

/** A message of each kind, for pictures of whoever shows them. */
namespace AppSampleMessages {

/** Writes to the standard output, has the scene graph library warn, and reads a broken scene. */
void say();
/** Whether all of them are in a text. */
bool areIn(const QString& text);

} // namespace AppSampleMessages
