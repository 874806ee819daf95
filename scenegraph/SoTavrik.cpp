#include "scenegraph/SoTavrik.h"

#include "scenegraph/SoErrorStack.h"
#include "scenegraph/SoGLError.h"
#include "scenegraph/SoSFFilePathString.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInteraction.h>
#include <Inventor/nodekits/SoNodeKit.h>

void SoTavrik::init()
{
    if (!SoDB::isInitialized())
        SoDB::init();
    SoNodeKit::init();
    SoInteraction::init();
    SoSFFilePathString::initClass();
    SoErrorStack::initClass();
    SoGLError::initClass();
}
