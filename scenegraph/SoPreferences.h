#pragma once

#include "TavrikSceneGraphExport.h"

#include <Inventor/SbBasic.h>
#include <Inventor/SbString.h>

/**
 * Answers what the user prefers: the environment variable of the preference's name where there is
 * one, else its line in the preference file, else the caller's default.
 *
 * The file is the one that the environment variable TAVRIK_PREFERENCES names, else
 * tavrik/preferences in $XDG_CONFIG_HOME, else $HOME/.config/tavrik/preferences. It is UTF-8 text
 * with one preference a line:
 * @code
 * # a comment
 * NAME value
 * NAME = a value with spaces, up to the end of the line
 * @endcode
 * The last line of a name counts. A line with a name and nothing else is malformed: it is reported
 * once, as a warning, and skipped. The file is read at each question, so that an answer is never
 * out of date; ask once and keep the answer where that matters.
 */
class TAVRIKSCENEGRAPH_EXPORT SoPreferences
{
public:
    static SbString getString(const SbString& name, const SbString& defaultValue);

    /** Integers but 0, and "true" in any case, are true; any other value is false. */
    static SbBool getBool(const SbString& name, SbBool defaultValue);
};
