#pragma once

#include "TavrikHostExport.h"

class SoNode;
class SoPath;

/** Looks at the whole of a path, where SoPath ends before the first part that a node kit hides. */
class TAVRIKHOST_EXPORT HostFullPath
{
public:
    static int length(const SoPath& path);
    static SoNode* node(const SoPath& path, int at);
    /** The place of a node in its parent; not for the head. */
    static int row(const SoPath& path, int at);
    /** Null for an empty path. */
    static SoNode* tail(const SoPath& path);
};
