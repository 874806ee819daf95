#include "lib/HostMarker.h"

#include "lib/HostFullPath.h"

#include <Inventor/SbBox3f.h>
#include <Inventor/SbViewportRegion.h>
#include <Inventor/SoPath.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoBaseColor.h>
#include <Inventor/nodes/SoCoordinate3.h>
#include <Inventor/nodes/SoDrawStyle.h>
#include <Inventor/nodes/SoIndexedLineSet.h>
#include <Inventor/nodes/SoLightModel.h>
#include <Inventor/nodes/SoMaterialBinding.h>
#include <Inventor/nodes/SoPickStyle.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/sensors/SoNodeSensor.h>

#include <cmath>
#include <vector>

namespace {

/** Draws, but takes no room: a view that shows everything does not step back for the marker. */
class MarkerSeparator : public SoSeparator
{
public:
    void getBoundingBox(SoGetBoundingBoxAction*) override {}

protected:
    ~MarkerSeparator() override = default;
};

/** Beyond the box, as a share of its longest side, so that the lines do not run into the faces. */
const float s_margin = 0.01F;

const SbColor s_color(1.0F, 0.62F, 0.1F);

/** Once round the bottom, once round the top, and the four posts; corner bits are x, y, z. */
const int32_t s_edges[] = {0, 1, 3,  2, 0, -1, 4, 5, 7,  6, 4, -1,
                           0, 4, -1, 1, 5, -1, 2, 6, -1, 3, 7, -1};

bool isDrawable(const SbBox3f& box)
{
    float sum = 0;
    for (int i = 0; i < 3; ++i)
        sum += box.getMin()[i] + box.getMax()[i];
    return !box.isEmpty() && std::isfinite(sum);
}

SbBox3f boxOf(SoPath* path)
{
    SoGetBoundingBoxAction action(SbViewportRegion(640, 480));
    action.apply(path);
    return action.getBoundingBox();
}

/** The box of the path's tail, or of the nearest node above it that draws something. */
SbBox3f nearestBox(SoPath* path)
{
    SbBox3f box = boxOf(path);
    while (!isDrawable(box) && HostFullPath::length(*path) > 1) {
        path->pop();
        box = boxOf(path);
    }
    return box;
}

} // namespace

/**
 * The marked path is kept as places in the children lists below a watched head, and not as an
 * SoPath, which would keep the head alive for as long as it is marked.
 */
class HostMarker::Private
{
public:
    struct Step
    {
        SoNode* node; ///< compared before it is used; not owned
        int row;
    };

    Private();
    ~Private() { separator->unref(); }

    void mark(const SoPath* path);
    void forget();
    void update();
    bool follow();
    SbBox3f markedBox() const;
    void show(const SbBox3f& box) const;
    void hide() const { visibility->whichChild = SO_SWITCH_NONE; }

    MarkerSeparator* separator = new MarkerSeparator;
    SoSwitch* visibility = new SoSwitch;
    SoCoordinate3* corners = new SoCoordinate3;
    SoNodeSensor sensor;
    SoNode* head = nullptr; ///< watched, not referenced
    std::vector<Step> steps;

private:
    void buildBox();
};

HostMarker::Private::Private()
    : sensor([](void* marker, SoSensor*) { static_cast<Private*>(marker)->update(); }, this)
{
    sensor.setDeleteCallback(
        [](void* marker, SoSensor*) {
            static_cast<Private*>(marker)->head = nullptr;
            static_cast<Private*>(marker)->forget();
        },
        this);
    separator->ref();
    separator->addChild(visibility);
    buildBox();
    hide();
}

void HostMarker::Private::buildBox()
{
    auto* const pick = new SoPickStyle;
    pick->style = SoPickStyle::UNPICKABLE;
    auto* const light = new SoLightModel;
    light->model = SoLightModel::BASE_COLOR;
    auto* const binding = new SoMaterialBinding;
    binding->value = SoMaterialBinding::OVERALL;
    auto* const color = new SoBaseColor;
    color->rgb = s_color;
    auto* const style = new SoDrawStyle;
    style->style = SoDrawStyle::LINES;
    style->lineWidth = 2;
    auto* const lines = new SoIndexedLineSet;
    lines->coordIndex.setValues(0, int(std::size(s_edges)), s_edges);
    for (SoNode* node :
         std::initializer_list<SoNode*>{pick, light, binding, color, style, corners, lines})
        visibility->addChild(node);
}

void HostMarker::Private::mark(const SoPath* path)
{
    forget();
    if (!path || !path->getHead())
        return;
    head = path->getHead();
    for (int i = 1; i < HostFullPath::length(*path); ++i)
        steps.push_back({HostFullPath::node(*path, i), HostFullPath::row(*path, i)});
    sensor.attach(head);
    update();
}

void HostMarker::Private::forget()
{
    if (head)
        sensor.detach();
    head = nullptr;
    steps.clear();
    hide();
}

void HostMarker::Private::update()
{
    if (!follow())
        return forget();
    const SbBox3f box = markedBox();
    isDrawable(box) ? show(box) : hide();
}

/** Finds the steps where they stand now; false when one has left the scene. */
bool HostMarker::Private::follow()
{
    const SoNode* parent = head;
    for (Step& step : steps) {
        const SoChildList* children = parent->getChildren();
        if (!children)
            return false;
        if (step.row >= children->getLength() || (*children)[step.row] != step.node)
            step.row = children->find(step.node);
        if (step.row < 0)
            return false;
        parent = step.node;
    }
    return head != nullptr;
}

SbBox3f HostMarker::Private::markedBox() const
{
    head->ref();
    auto* const path = new SoPath(head);
    path->ref();
    for (const Step& step : steps)
        path->append(step.row);
    const SbBox3f box = nearestBox(path);
    path->unref();
    head->unrefNoDelete();
    return box;
}

void HostMarker::Private::show(const SbBox3f& box) const
{
    const SbVec3f size = box.getMax() - box.getMin();
    const float margin = s_margin * std::max(size[0], std::max(size[1], size[2]));
    const SbVec3f ends[2] = {box.getMin() - SbVec3f(margin, margin, margin),
                             box.getMax() + SbVec3f(margin, margin, margin)};
    SbVec3f points[8];
    for (int i = 0; i < 8; ++i)
        points[i].setValue(ends[i & 1][0], ends[i >> 1 & 1][1], ends[i >> 2 & 1][2]);
    corners->point.setValues(0, 8, points);
    visibility->whichChild = SO_SWITCH_ALL;
}

HostMarker::HostMarker() : d(new Private) {}

HostMarker::~HostMarker()
{
    delete d;
}

SoSeparator* HostMarker::node() const
{
    return d->separator;
}

void HostMarker::mark(const SoPath* path)
{
    d->mark(path);
}

bool HostMarker::isVisible() const
{
    return d->visibility->whichChild.getValue() == SO_SWITCH_ALL;
}
