#include "scenegraph/SoGLError.h"

template class SoErrorKind<SoGLError>;

void SoGLError::initClass()
{
    registerType("GLError");
}
