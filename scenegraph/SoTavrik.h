#pragma once

#include "TavrikSceneGraphExport.h"

/** Brings up what this library adds to Coin. */
class TAVRIKSCENEGRAPH_EXPORT SoTavrik
{
public:
    /**
     * Initialises Coin (SoDB, node kits, interaction) where nobody has, and registers the classes
     * of this library with it, once. Call it before any scene is read and before any plug-in is
     * loaded.
     */
    static void init();
};
