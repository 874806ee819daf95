#pragma once

#include "TavrikHostExport.h"

#include "lib/HostFieldFilter.h"
#include "lib/HostFieldsSensor.h"

#include <QAbstractTableModel>
#include <QBasicTimer>

#include <vector>

class SoField;
class SoNode;
class SoSensor;

/**
 * The fields of one node: name, type, value in short, and whether the field is at its default, is
 * ignored, is connected. Follows the node's changes when Coin's delay queue runs; holds no
 * reference to it, and is empty as soon as it dies. A value is read only when a view or the filter
 * asks for its row. Coin tells nobody that a connection is cut: that mark goes with the next change
 * of the node, or when its row is drawn anew.
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
    /**
     * Shows only the fields with this piece in name, type or value, in whatever case. Where many
     * values have to be read for that, the fields that they bring appear from the event loop.
     */
    void setFilter(const QString& text);
    /** The field of a row; null when there is none. */
    SoField* field(int row) const;
    /** The row of a field of the node; -1 when it is none of its own, or is not shown. */
    int row(const SoField* field) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /** The last three columns are narrow: their titles are letters, told in full as tool tips. */
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

protected:
    void timerEvent(QTimerEvent* event) override;

signals:
    /** The node has died; the model is empty by now. */
    void nodeGone();

private:
    static void nodeChanged(void* model, SoSensor*);
    static void nodeDied(void* model, SoSensor*);

    void reset(SoNode* node);
    void refresh();
    bool updateRows();
    std::vector<int> acceptedFields();
    QString name(int index) const;
    QVariant display(int row, int column) const;
    QVariant toolTip(int row, int column) const;

    HostFieldsSensor m_sensor;
    HostFieldFilter m_filter;
    QBasicTimer m_readOn;           ///< runs while the filter has values left to read
    SoNode* m_node = nullptr;       ///< not owned, not referenced
    std::vector<SoField*> m_fields; ///< the node's own, in the order of declaration
    std::vector<int> m_rows;        ///< which of them the filter lets through
};
