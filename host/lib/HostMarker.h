#pragma once

#include "TavrikHostExport.h"

class SoNode;
class SoPath;
class SoSeparator;

/**
 * Marks a node in the picture: a wire box around what the node draws, or, for a node that draws
 * nothing itself, around the nearest group above it that does. It follows the scene's changes. The
 * box is drawn by a node of its own, to be put beside the scene and never into it; it cannot be
 * picked and is left out of the view's bounding box.
 *
 * The marker keeps nothing of the scene alive: when a node of the marked path leaves the scene, or
 * the scene dies, it forgets the path and draws nothing.
 */
class TAVRIKHOST_EXPORT HostMarker
{
public:
    HostMarker();
    ~HostMarker();
    HostMarker(const HostMarker&) = delete;
    HostMarker& operator=(const HostMarker&) = delete;

    /** The node that draws the box; referenced by the marker. */
    SoSeparator* node() const;
    /** Marks the tail of a path; null marks nothing. The path is copied, without references. */
    void mark(const SoPath* path);
    /** Whether a box is drawn now. */
    bool isVisible() const;

private:
    class Private;
    Private* const d;
};
