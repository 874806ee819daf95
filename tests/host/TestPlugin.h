#pragma once

#include <QtGlobal>

/**
 * What a plug-in library made for tests tells of itself, and how a test sets it: the functions are
 * found in the library by these names.
 */
struct TestPluginState
{
    int loads = 0;                 ///< calls of loadPlugin()
    int unloads = 0;               ///< calls of unloadPlugin()
    bool answerNull = false;       ///< let loadPlugin() make nothing
    bool fail = false;             ///< let loadPlugin() throw
    bool failWithoutWords = false; ///< let it throw what is no exception
};

/** Exported as "testPluginState". */
using TestPluginStateFunction = TestPluginState*();
