#pragma once

#include "TavrikSceneGraphExport.h"
#include "scenegraph/SoErrorKind.h"

class SoGLError;
extern template class TAVRIKSCENEGRAPH_EXPORT SoErrorKind<SoGLError>;

/**
 * An OpenGL error that was found after a frame: which one, and while drawing what.
 *
 * Its reports reach SoError's handler until one of its own is set.
 */
class TAVRIKSCENEGRAPH_EXPORT SoGLError final : public SoErrorKind<SoGLError>
{
public:
    static void initClass();
};
