#pragma once

class QPalette;
class QString;

/** The colours that the gallery's pictures are made in. */
namespace AppPalette {

/** "light" or "dark". */
QPalette named(const QString& name);

} // namespace AppPalette
