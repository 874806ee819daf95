#pragma once

#include "TavrikHostExport.h"

class SoNode;

/** Who holds a node as a child. */
class TAVRIKHOST_EXPORT HostParents
{
public:
    /** How many parents a node has, once for each time that it is a child; `except` is left out. */
    static int count(const SoNode& node, const SoNode* except);
};
