#pragma once

#include <memory>
#include <vector>

class SoNode;

/**
 * What the scene model has told its views about one parent: the children in order, and which of
 * them have children of their own. Made only for parents that a view has asked about; a child has
 * no item until it is asked about in turn.
 */
struct HostSceneItem
{
    HostSceneItem() = default;
    ~HostSceneItem();
    HostSceneItem(const HostSceneItem&) = delete;
    HostSceneItem& operator=(const HostSceneItem&) = delete;

    int count() const { return int(children.size()); }
    /** The item of the child at a row; null while nobody has asked about it. */
    HostSceneItem* find(int atRow) const;
    /** Makes the item of the child at a row, which has none yet. */
    HostSceneItem& add(int atRow);
    void insert(int first, const std::vector<SoNode*>& nodes,
                const std::vector<bool>& haveChildren);
    void remove(int first, int end);

    /** Walks down from the root, since a node may be looked into only while its parent holds it. */
    bool isLive() const;
    /** Where the scene holds the child of a row now, of an item that is live; -1 when it does not.
     *  Rows behind a change that has not been announced yet are found as well. */
    int liveRow(int atRow) const;
    /** The child of a row if the scene still holds it, else null. */
    SoNode* liveChild(int atRow) const;
    std::vector<SoNode*> liveChildren() const;
    static bool hasChildren(const SoNode* node);

    SoNode* root = nullptr; ///< the only child of the topmost item, null for others; not owned
    SoNode* node = nullptr; ///< compared before it is used, since it may be dead; not owned
    HostSceneItem* parent = nullptr;                   ///< not owned
    int row = 0;                                       ///< in the parent
    std::vector<SoNode*> children;                     ///< compared before they are used; not owned
    std::vector<bool> expandable;                      ///< of the children that have no item
    std::vector<std::unique_ptr<HostSceneItem>> asked; ///< the items of children, ascending by row

private:
    std::vector<std::unique_ptr<HostSceneItem>>::iterator from(int atRow);
    void shift(int first, int by);
};
