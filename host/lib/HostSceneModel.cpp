#include "lib/HostSceneModel.h"

#include "lib/HostFullPath.h"
#include "lib/HostSceneItem.h"
#include "lib/HostSceneSensor.h"

#include <Inventor/SoPath.h>
#include <Inventor/nodes/SoNode.h>

#include <algorithm>

namespace {

/** More than any screen shows; a view lays out this many rows at once. */
const size_t s_firstRows = 200;

/** Long enough for the first picture, too short to reach for the scroll bar. In milliseconds. */
const int s_putOffTime = 20;

std::vector<bool> haveChildren(const std::vector<SoNode*>& nodes)
{
    std::vector<bool> answers(nodes.size());
    std::transform(nodes.begin(), nodes.end(), answers.begin(), HostSceneItem::hasChildren);
    return answers;
}

} // namespace

HostSceneModel::HostSceneModel(QObject* parent)
    : QAbstractItemModel(parent), m_sensor(std::make_unique<HostSceneSensor>(sceneChanged, this)),
      m_top(std::make_unique<HostSceneItem>())
{
    m_sensor->setDeleteCallback(rootDied, this);
    m_putOff.setSingleShot(true);
    connect(&m_putOff, SIGNAL(timeout()), this, SLOT(catchUp()));
}

HostSceneModel::~HostSceneModel() = default;

void HostSceneModel::setRoot(SoNode* root)
{
    m_sensor->detach();
    reset(root);
    if (root)
        m_sensor->attach(root);
}

void HostSceneModel::rootDied(void* model, SoSensor*)
{
    static_cast<HostSceneModel*>(model)->reset(nullptr);
}

void HostSceneModel::reset(SoNode* root)
{
    // Already empty while the reset is announced: nobody may touch a root that is dying.
    m_root = nullptr;
    m_top->root = nullptr;
    beginResetModel();
    m_putOff.stop();
    m_interrupted = true;
    m_root = root;
    m_top = std::make_unique<HostSceneItem>();
    m_top->root = root;
    if (root)
        m_top->insert(0, {root}, haveChildren({root}));
    endResetModel();
}

void HostSceneModel::setOwnParent(const SoNode* node)
{
    m_look.setOwnParent(node);
    if (m_root)
        emit dataChanged(index(0, 0), index(0, ColumnCount - 1));
}

SoNode* HostSceneModel::node(const QModelIndex& index) const
{
    if (!index.isValid() || index.model() != this)
        return nullptr;
    const auto* const item = static_cast<const HostSceneItem*>(index.internalPointer());
    return item->isLive() ? item->liveChild(index.row()) : nullptr;
}

HostSceneItem* HostSceneModel::itemBelow(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return m_top.get();
    if (parent.column() != TypeColumn || parent.model() != this)
        return nullptr;
    auto* const above = static_cast<HostSceneItem*>(parent.internalPointer());
    HostSceneItem* item = above->find(parent.row());
    return item ? item : makeItem(*above, parent.row());
}

HostSceneItem* HostSceneModel::makeItem(HostSceneItem& parent, int row) const
{
    const bool isExpandable = row < parent.count() && parent.expandable[size_t(row)];
    if (!isExpandable || !parent.isLive())
        return nullptr;
    const SoNode* live = parent.liveChild(row);
    if (!live || !HostSceneItem::hasChildren(live))
        return nullptr;
    HostSceneItem& item = parent.add(row);
    std::vector<SoNode*> nodes = item.liveChildren();
    if (nodes.size() > s_firstRows) {
        nodes.resize(s_firstRows);
        m_putOff.start(s_putOffTime);
    }
    item.insert(0, nodes, haveChildren(nodes));
    return &item;
}

QModelIndex HostSceneModel::index(int row, int column, const QModelIndex& parent) const
{
    const HostSceneItem* item = itemBelow(parent);
    if (!item || row < 0 || row >= item->count() || column < 0 || column >= ColumnCount)
        return {};
    return createIndex(row, column, const_cast<HostSceneItem*>(item));
}

QModelIndex HostSceneModel::parent(const QModelIndex& index) const
{
    return index.isValid() ? indexOf(*static_cast<HostSceneItem*>(index.internalPointer()))
                           : QModelIndex();
}

QModelIndex HostSceneModel::indexOf(const HostSceneItem& item) const
{
    return item.parent ? createIndex(item.row, 0, item.parent) : QModelIndex();
}

int HostSceneModel::rowCount(const QModelIndex& parent) const
{
    const HostSceneItem* item = itemBelow(parent);
    return item ? item->count() : 0;
}

int HostSceneModel::columnCount(const QModelIndex&) const
{
    return ColumnCount;
}

bool HostSceneModel::hasChildren(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return m_top->count() > 0;
    if (parent.column() != TypeColumn)
        return false;
    const auto* const above = static_cast<const HostSceneItem*>(parent.internalPointer());
    if (const HostSceneItem* item = above->find(parent.row()))
        return item->count() > 0;
    return parent.row() < above->count() && above->expandable[size_t(parent.row())];
}

QModelIndex HostSceneModel::index(const SoPath& path)
{
    catchUp();
    if (!m_root || path.getHead() != m_root)
        return {};
    QModelIndex at = index(0, TypeColumn);
    for (int i = 1; i < HostFullPath::length(path) && at.isValid(); ++i) {
        const int row = HostFullPath::row(path, i);
        const HostSceneItem* item = itemBelow(at);
        if (item && row >= item->count())
            catchUp();
        at = index(row, TypeColumn, at);
        if (node(at) != HostFullPath::node(path, i))
            return {};
    }
    return at;
}

SoPath* HostSceneModel::path(const QModelIndex& index) const
{
    if (!node(index))
        return nullptr;
    std::vector<int> rows;
    const auto* item = static_cast<const HostSceneItem*>(index.internalPointer());
    for (int row = index.row(); item->parent; row = item->row, item = item->parent)
        rows.push_back(item->liveRow(row));
    auto* path = new SoPath(m_root);
    std::for_each(rows.rbegin(), rows.rend(), [path](int row) { path->append(row); });
    return path;
}

QVariant HostSceneModel::data(const QModelIndex& index, int role) const
{
    const SoNode* shown = HostNodeLook::isShown(role) ? node(index) : nullptr;
    return shown ? m_look.data(*shown, index.column(), role) : QVariant();
}

QVariant HostSceneModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const char* const titles[ColumnCount] = {QT_TR_NOOP("Type"), QT_TR_NOOP("Name"),
                                                    QT_TR_NOOP("Parents")};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= ColumnCount)
        return {};
    return tr(titles[section]);
}

void HostSceneModel::sceneChanged(void* model, SoSensor*)
{
    static_cast<HostSceneModel*>(model)->catchUp();
}

void HostSceneModel::catchUp()
{
    if (m_catchingUp || !m_root)
        return;
    m_catchingUp = true;
    m_interrupted = false;
    if (m_sensor->isScheduled())
        m_sensor->unschedule();
    m_putOff.stop();
    std::vector<HostSceneItem*> waiting{m_top.get()};
    while (!waiting.empty()) {
        HostSceneItem& item = *waiting.back();
        waiting.pop_back();
        updateItem(item);
        if (isInterrupted())
            break;
        for (const auto& child : item.asked)
            waiting.push_back(child.get());
    }
    m_catchingUp = false;
}

/** A slot changed the scene while it was being told: the rest waits for the sensor's next turn. */
bool HostSceneModel::isInterrupted() const
{
    return m_interrupted || m_sensor->isScheduled();
}

/** Only the rows between the common beginning and the common end are announced: the selection and
 *  what is expanded elsewhere survive. */
void HostSceneModel::updateItem(HostSceneItem& item)
{
    const std::vector<SoNode*> live = item.liveChildren();
    const std::vector<SoNode*>& known = item.children;
    const size_t shorter = std::min(live.size(), known.size());
    const auto first = std::mismatch(known.begin(), known.begin() + long(shorter), live.begin());
    const size_t same = size_t(first.first - known.begin());
    const auto last =
        std::mismatch(known.rbegin(), known.rbegin() + long(shorter - same), live.rbegin());
    const long tail = last.first - known.rbegin();
    const std::vector<SoNode*> added(live.begin() + long(same), live.end() - tail);
    const int end = item.count() - int(tail);

    if (end > int(same))
        removeFrom(item, int(same), end);
    if (!added.empty() && !isInterrupted())
        insertInto(item, int(same), added);
    if (!isInterrupted())
        updateExpandable(item);
}

void HostSceneModel::removeFrom(HostSceneItem& item, int first, int end)
{
    beginRemoveRows(indexOf(item), first, end - 1);
    if (!m_interrupted)
        item.remove(first, end);
    endRemoveRows();
}

void HostSceneModel::insertInto(HostSceneItem& item, int first, const std::vector<SoNode*>& nodes)
{
    const std::vector<bool> expandable = haveChildren(nodes);
    beginInsertRows(indexOf(item), first, first + int(nodes.size()) - 1);
    if (!m_interrupted)
        item.insert(first, nodes, expandable);
    endInsertRows();
}

/** A child that nobody has asked about may have got its first children, or lost its last. */
void HostSceneModel::updateExpandable(HostSceneItem& item)
{
    for (int row = 0; row < item.count(); ++row) {
        const bool now = HostSceneItem::hasChildren(item.children[size_t(row)]);
        if (now == item.expandable[size_t(row)])
            continue;
        item.expandable[size_t(row)] = now;
        if (item.find(row))
            continue;
        // From here on it has an item, whose rows the same turn announces as come or gone; of
        // those that are gone nobody knew the number.
        HostSceneItem& child = item.add(row);
        if (!now)
            child.insert(0, {nullptr}, {false});
    }
    if (item.count() > 0)
        emit dataChanged(createIndex(0, NameColumn, &item),
                         createIndex(item.count() - 1, ParentsColumn, &item));
}
