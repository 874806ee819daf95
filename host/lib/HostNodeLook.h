#pragma once

#include <QIcon>
#include <QVariant>

class SoNode;

/** How one node looks in the scene tree: its texts, and the mark of a node with several parents. */
class HostNodeLook
{
public:
    HostNodeLook();

    /** A node of the host's own, which is not counted as a parent. */
    void setOwnParent(const SoNode* node) { m_ownParent = node; }

    /** Whether there is anything to show for a role: asked first, since finding a node costs. */
    static bool isShown(int role);
    QVariant data(const SoNode& node, int column, int role) const;

private:
    QVariant sharedData(int parents, int column, int role) const;

    const SoNode* m_ownParent = nullptr; ///< compared only
    QIcon m_sharedIcon;
};
