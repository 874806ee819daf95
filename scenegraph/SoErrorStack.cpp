#include "scenegraph/SoErrorStack.h"

template class SoErrorKind<SoErrorStack>;

void SoErrorStack::initClass()
{
    registerType("ErrorStack");
}
