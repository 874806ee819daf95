#pragma once

#include "TavrikHostExport.h"
#include "lib/HostNodeLook.h"

#include <QAbstractItemModel>
#include <QTimer>

#include <memory>
#include <vector>

class HostSceneSensor;
class SoNode;
class SoPath;
class SoSensor;
struct HostSceneItem;

/**
 * The scene graph as a tree: type, name, number of parents. Rows are made when a view asks for
 * them, so a scene of any size is shown at once; a node that has several parents is shown below
 * each and marked as shared.
 *
 * A group of many children first announces as many as fill any screen, and all the others a
 * moment later, when the first picture stands; catchUp() announces them at once.
 *
 * The model holds no reference: the root is watched, and a row is answered only after its chain of
 * children has been walked from the live root. Rows follow the scene when Coin's delay queue runs;
 * until then a row that is no longer true answers empty data.
 */
class TAVRIKHOST_EXPORT HostSceneModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { TypeColumn, NameColumn, ParentsColumn, ColumnCount };

    explicit HostSceneModel(QObject* parent = nullptr);
    ~HostSceneModel() override;

    /** Shows another scene; null shows none. Not referenced. */
    void setRoot(SoNode* root);
    SoNode* root() const { return m_root; }
    /** A node of the host's own that holds the root (a view's, say): not counted as a parent. */
    void setOwnParent(const SoNode* node);

    /** The node of a row; null when the row is stale or invalid. */
    SoNode* node(const QModelIndex& index) const;
    /** The first row of a path whose head is the root; invalid when the path is not in the tree.
     *  The parts that a node kit hides are rows as well, and a path leads to them. */
    QModelIndex index(const SoPath& path);
    /** The path from the root to the row, referenced zero times; null for an invalid row. */
    SoPath* path(const QModelIndex& index) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

public slots:
    /** Announces now what changed in the scene, and the children that were still put off. */
    void catchUp();

private:
    static void sceneChanged(void* model, SoSensor*);
    static void rootDied(void* model, SoSensor*);

    void reset(SoNode* root);
    HostSceneItem* itemBelow(const QModelIndex& parent) const;
    HostSceneItem* makeItem(HostSceneItem& parent, int row) const;
    QModelIndex indexOf(const HostSceneItem& item) const;
    bool isInterrupted() const;
    void updateItem(HostSceneItem& item);
    void removeFrom(HostSceneItem& item, int first, int end);
    void insertInto(HostSceneItem& item, int first, const std::vector<SoNode*>& nodes);
    void updateExpandable(HostSceneItem& item);

    SoNode* m_root = nullptr; ///< not owned, not referenced
    std::unique_ptr<HostSceneSensor> m_sensor;
    mutable QTimer m_putOff; ///< runs while there are children that have not been announced
    std::unique_ptr<HostSceneItem> m_top; ///< above the root, which is its only child
    bool m_catchingUp = false;
    bool m_interrupted = false; ///< there was a reset while rows were announced
    HostNodeLook m_look;
};
