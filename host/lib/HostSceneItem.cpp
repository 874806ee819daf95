#include "lib/HostSceneItem.h"

#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoNode.h>

#include <QVarLengthArray>

#include <algorithm>
#include <iterator>

namespace {

bool isBefore(const std::unique_ptr<HostSceneItem>& item, int row)
{
    return item->row < row;
}

} // namespace

HostSceneItem::~HostSceneItem()
{
    // One after the other and not one inside the other: a very deep scene would exhaust the stack.
    std::vector<std::unique_ptr<HostSceneItem>> doomed = std::move(asked);
    while (!doomed.empty()) {
        const std::unique_ptr<HostSceneItem> item = std::move(doomed.back());
        doomed.pop_back();
        std::move(item->asked.begin(), item->asked.end(), std::back_inserter(doomed));
        item->asked.clear();
    }
}

HostSceneItem* HostSceneItem::find(int atRow) const
{
    const auto found = std::lower_bound(asked.begin(), asked.end(), atRow, isBefore);
    return found != asked.end() && (*found)->row == atRow ? found->get() : nullptr;
}

HostSceneItem& HostSceneItem::add(int atRow)
{
    auto item = std::make_unique<HostSceneItem>();
    item->node = children[size_t(atRow)];
    item->parent = this;
    item->row = atRow;
    return **asked.insert(from(atRow), std::move(item));
}

void HostSceneItem::insert(int first, const std::vector<SoNode*>& nodes,
                           const std::vector<bool>& haveChildren)
{
    shift(first, int(nodes.size()));
    children.insert(children.begin() + first, nodes.begin(), nodes.end());
    expandable.insert(expandable.begin() + first, haveChildren.begin(), haveChildren.end());
}

void HostSceneItem::remove(int first, int end)
{
    asked.erase(from(first), from(end));
    shift(end, first - end);
    children.erase(children.begin() + first, children.begin() + end);
    expandable.erase(expandable.begin() + first, expandable.begin() + end);
}

bool HostSceneItem::isLive() const
{
    QVarLengthArray<const HostSceneItem*, 64> chain;
    const HostSceneItem* top = this;
    for (; top->parent; top = top->parent)
        chain.append(top);
    return top->root && std::all_of(chain.rbegin(), chain.rend(), [](const auto* step) {
               return step->parent->liveChild(step->row) == step->node;
           });
}

int HostSceneItem::liveRow(int atRow) const
{
    if (atRow >= count())
        return -1;
    if (!parent)
        return root && children[0] == root ? 0 : -1;
    const SoChildList* live = node->getChildren();
    const int length = live ? live->getLength() : 0;
    const int fromEnd = length - (count() - atRow);
    for (int candidate : {atRow, fromEnd})
        if (candidate >= 0 && candidate < length && (*live)[candidate] == children[size_t(atRow)])
            return candidate;
    return -1;
}

SoNode* HostSceneItem::liveChild(int atRow) const
{
    return liveRow(atRow) >= 0 ? children[size_t(atRow)] : nullptr;
}

std::vector<SoNode*> HostSceneItem::liveChildren() const
{
    if (!parent)
        return {root};
    const SoChildList* live = node->getChildren();
    std::vector<SoNode*> nodes(live ? size_t(live->getLength()) : 0);
    for (size_t i = 0; i < nodes.size(); ++i)
        nodes[i] = (*live)[int(i)];
    return nodes;
}

bool HostSceneItem::hasChildren(const SoNode* node)
{
    const SoChildList* live = node->getChildren();
    return live && live->getLength() > 0;
}

std::vector<std::unique_ptr<HostSceneItem>>::iterator HostSceneItem::from(int atRow)
{
    return std::lower_bound(asked.begin(), asked.end(), atRow, isBefore);
}

void HostSceneItem::shift(int first, int by)
{
    std::for_each(from(first), asked.end(), [by](const auto& item) { item->row += by; });
}
