#pragma once

#include "TavrikHostExport.h"

#include <QString>

class SoNode;
class SoPath;

/**
 * Words which node of a scene is meant, so that it can be found again in the same file:
 * `/lamp/Transform[1]` is the second Transform below the node named lamp, which is a child of the
 * scene's root; `/` is the root itself.
 *
 * A step is the name of a child, or the type of one with its number among the children of that
 * type, from 0 on; a type alone means the first. Characters of a name that mean something here
 * (`/`, `.`,
 * `[`, `]`, `%`, spaces) are written as in a URL, `%2F`.
 */
class TAVRIKHOST_EXPORT HostNodePath
{
public:
    /** A node, and a field of it where one is named: `/lamp/Transform[1].translation`. */
    struct Target
    {
        QString node;
        QString field; ///< empty: none
    };
    static Target split(const QString& text);

    /** Goes by names where they tell the child from those before it, else by types. */
    static QString text(const SoPath& path);
    /** Referenced zero times; null when there is no such node, and `error` says where it ends. */
    static SoPath* find(SoNode& root, const QString& text, QString* error);
};
