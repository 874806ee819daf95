#pragma once

#include "TavrikSceneGraphExport.h"
#include "scenegraph/SoErrorKind.h"

class SoErrorStack;
extern template class TAVRIKSCENEGRAPH_EXPORT SoErrorKind<SoErrorStack>;

/**
 * A report that carries the chain of errors that led to it, the last one first: what went wrong,
 * and what had gone wrong before so that it did.
 *
 * Its reports reach SoError's handler until one of its own is set.
 */
class TAVRIKSCENEGRAPH_EXPORT SoErrorStack final : public SoErrorKind<SoErrorStack>
{
public:
    static void initClass();
};
