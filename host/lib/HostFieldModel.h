#pragma once

#include "TavrikHostExport.h"

#include <Inventor/sensors/SoNodeSensor.h>

#include <QAbstractTableModel>

#include <vector>

class SoField;
class SoNode;
class SoSensor;

/**
 * The fields of one node: name, type, value in short, and whether the field is at its default, is
 * ignored, is connected. Follows the node's changes when Coin's delay queue runs; holds no
 * reference to it, and is empty as soon as it dies. A value is read only when a view asks for its
 * row.
 */
class TAVRIKHOST_EXPORT HostFieldModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column {
        NameColumn,
        TypeColumn,
        ValueColumn,
        DefaultColumn,
        IgnoredColumn,
        ConnectedColumn,
        ColumnCount
    };

    explicit HostFieldModel(QObject* parent = nullptr);
    ~HostFieldModel() override;

    /** Shows another node's fields; null shows none. Not referenced. */
    void setNode(SoNode* node);
    SoNode* node() const { return m_node; }
    /** The field of a row; null when there is none. */
    SoField* field(int row) const;
    /** The row of a field of the node; -1 when it is none of its own. */
    int row(const SoField* field) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    static void nodeChanged(void* model, SoSensor*);
    static void nodeDied(void* model, SoSensor*);

    void reset(SoNode* node);
    void refresh();
    QVariant text(SoField& field, int column) const;

    SoNodeSensor m_sensor;
    SoNode* m_node = nullptr;       ///< not owned, not referenced
    std::vector<SoField*> m_fields; ///< the node's own, in the order of declaration
};
