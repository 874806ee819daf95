#include "lib/HostFullPath.h"

#include <Inventor/SoFullPath.h>

// Coin's one way to the hidden part is a cast to a class that the path is no object of. It adds
// neither members nor virtual functions; the sanitizer is told so here, and nowhere else.

[[gnu::no_sanitize("vptr")]] int HostFullPath::length(const SoPath& path)
{
    return static_cast<const SoFullPath&>(path).getLength();
}

[[gnu::no_sanitize("vptr")]] SoNode* HostFullPath::node(const SoPath& path, int at)
{
    return static_cast<const SoFullPath&>(path).getNode(at);
}

[[gnu::no_sanitize("vptr")]] int HostFullPath::row(const SoPath& path, int at)
{
    return static_cast<const SoFullPath&>(path).getIndex(at);
}

SoNode* HostFullPath::tail(const SoPath& path)
{
    return length(path) > 0 ? node(path, length(path) - 1) : nullptr;
}
