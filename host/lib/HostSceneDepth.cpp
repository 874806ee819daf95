#include "lib/HostSceneDepth.h"

#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoGroup.h>

#include <algorithm>
#include <unordered_map>

namespace {

/** A node on the way from the root to where the walk is. */
struct Step
{
    SoNode* node;
    int next = 0;   ///< the child to look at next
    int levels = 1; ///< as far as they are known
};

/** In place of the levels of a node whose children are being looked at. */
constexpr int Unfinished = 0;

} // namespace

HostSceneDepth::HostSceneDepth(SoNode& root)
{
    std::unordered_map<const SoNode*, int> levels{{&root, Unfinished}};
    std::vector<Step> way{{&root}};
    while (!way.empty()) {
        Step& step = way.back();
        const SoChildList* const children = step.node->getChildren();
        if (!children || step.next >= children->getLength()) {
            m_levels = step.levels;
            m_nodes.push_back(step.node);
            levels[step.node] = m_levels;
            way.pop_back();
            if (!way.empty())
                way.back().levels = std::max(way.back().levels, m_levels + 1);
            continue;
        }
        SoNode* const child = (*children)[step.next++];
        const auto [known, isNew] = levels.insert({child, Unfinished});
        if (isNew)
            way.push_back({child});
        else if (known->second == Unfinished)
            m_isCyclic = true;
        else
            step.levels = std::max(step.levels, known->second + 1);
    }
}

void HostSceneDepth::dismantle() const
{
    for (SoNode* node : m_nodes)
        node->ref();
    // From above, for each group tells those that are above it still.
    for (auto node = m_nodes.rbegin(); node != m_nodes.rend(); ++node)
        if ((*node)->isOfType(SoGroup::getClassTypeId()))
            static_cast<SoGroup*>(*node)->removeAllChildren();
    for (SoNode* node : m_nodes)
        node->unref();
}
