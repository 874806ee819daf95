#pragma once

#include "TavrikHostExport.h"

#include <vector>

class SoNode;

/**
 * How deeply a scene is nested. Coin walks a scene by calling itself, one level inside the other,
 * so a scene that is too deep, or that holds itself, would exhaust the stack sooner or later: with
 * drawing, saving, or letting it go.
 */
class TAVRIKHOST_EXPORT HostSceneDepth
{
public:
    /** Levels that every walk of Coin's has room for, with plenty to spare. */
    static constexpr int Limit = 2000;

    /** Looks at the whole scene, each node once. It has to live as long as this object. */
    explicit HostSceneDepth(SoNode& root);

    /** Levels from the root down, which is the first; of no meaning in a scene that is cyclic. */
    int levels() const { return m_levels; }
    /** Whether a node is below itself. */
    bool isCyclic() const { return m_isCyclic; }

    /** Takes every group apart, so that the scene can be let go without a walk. */
    void dismantle() const;

private:
    std::vector<SoNode*> m_nodes; ///< those below before those above
    int m_levels = 0;
    bool m_isCyclic = false;
};
