#include "lib/HostFieldModel.h"

#include "lib/HostFieldSummary.h"
#include "lib/HostText.h"

#include <Inventor/SbName.h>
#include <Inventor/engines/SoEngine.h>
#include <Inventor/engines/SoEngineOutput.h>
#include <Inventor/engines/SoNodeEngine.h>
#include <Inventor/fields/SoField.h>
#include <Inventor/lists/SoFieldList.h>
#include <Inventor/nodes/SoNode.h>

#include <QStringList>

#include <algorithm>

namespace {

std::vector<SoField*> fieldsOf(const SoNode* node)
{
    SoFieldList list;
    const int count = node ? node->getFields(list) : 0;
    std::vector<SoField*> fields(size_t(count), nullptr);
    for (int i = 0; i < count; ++i)
        fields[size_t(i)] = list[i];
    return fields;
}

QString fieldName(SoField& field)
{
    SbName name;
    if (const SoFieldContainer* container = field.getContainer())
        container->getFieldName(&field, name);
    return HostText::fromCoin(name);
}

QString outputTitle(SoEngineOutput& output)
{
    SbName name;
    const SoFieldContainer* container = output.getFieldContainer();
    if (!output.isNodeEngineOutput())
        output.getContainer()->getOutputName(&output, name);
    else
        output.getNodeContainer()->getOutputName(&output, name);
    return HostText::title(container) + QStringLiteral(", ") + HostText::fromCoin(name);
}

QString connectionText(SoField& field)
{
    SoFieldList masters;
    field.getConnections(masters);
    QStringList titles;
    for (int i = 0; i < masters.getLength(); ++i)
        titles << HostText::title(masters[i]->getContainer()) + QStringLiteral(", ") +
                      fieldName(*masters[i]);
    SoEngineOutput* output = nullptr;
    if (field.getConnectedEngine(output) && output)
        titles << outputTitle(*output);
    return titles.join(QLatin1Char('\n'));
}

QString mark(bool on)
{
    return on ? QString(QChar(0x2713)) : QString();
}

} // namespace

HostFieldModel::HostFieldModel(QObject* parent)
    : QAbstractTableModel(parent), m_sensor(nodeChanged, this)
{
    m_sensor.setDeleteCallback(nodeDied, this);
}

HostFieldModel::~HostFieldModel() = default;

void HostFieldModel::setNode(SoNode* node)
{
    if (m_node)
        m_sensor.detach();
    reset(node);
    if (node)
        m_sensor.attach(node);
}

void HostFieldModel::nodeDied(void* model, SoSensor*)
{
    static_cast<HostFieldModel*>(model)->reset(nullptr);
}

void HostFieldModel::reset(SoNode* node)
{
    // Already empty while the reset is announced: nobody may touch the fields of a dying node.
    m_fields.clear();
    m_node = nullptr;
    beginResetModel();
    m_node = node;
    m_fields = fieldsOf(node);
    endResetModel();
}

void HostFieldModel::nodeChanged(void* model, SoSensor*)
{
    static_cast<HostFieldModel*>(model)->refresh();
}

void HostFieldModel::refresh()
{
    // A node of a type that Coin does not know may be given more fields at any time.
    if (fieldsOf(m_node) != m_fields)
        reset(m_node);
    else if (!m_fields.empty())
        emit dataChanged(index(0, ValueColumn), index(rowCount() - 1, ConnectedColumn));
}

SoField* HostFieldModel::field(int row) const
{
    return row >= 0 && row < rowCount() ? m_fields[size_t(row)] : nullptr;
}

int HostFieldModel::row(const SoField* field) const
{
    const auto found = std::find(m_fields.begin(), m_fields.end(), field);
    return found != m_fields.end() ? int(found - m_fields.begin()) : -1;
}

int HostFieldModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_fields.size());
}

int HostFieldModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant HostFieldModel::data(const QModelIndex& index, int role) const
{
    SoField* shown = index.isValid() ? field(index.row()) : nullptr;
    if (!shown)
        return {};
    if (role == Qt::DisplayRole)
        return text(*shown, index.column());
    if (role == Qt::TextAlignmentRole && index.column() >= DefaultColumn)
        return int(Qt::AlignCenter);
    if (role == Qt::ToolTipRole && index.column() == ValueColumn)
        return HostFieldSummary::text(*shown);
    if (role == Qt::ToolTipRole && index.column() == ConnectedColumn && shown->isConnected())
        return tr("Connected from %1").arg(connectionText(*shown));
    return {};
}

QVariant HostFieldModel::text(SoField& field, int column) const
{
    switch (column) {
    case NameColumn:
        return fieldName(field);
    case TypeColumn:
        return HostText::fromCoin(field.getTypeId().getName());
    case ValueColumn:
        return HostFieldSummary::text(field);
    case DefaultColumn:
        return mark(field.isDefault());
    case IgnoredColumn:
        return mark(field.isIgnored());
    default:
        return mark(field.isConnected());
    }
}

QVariant HostFieldModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const char* const titles[ColumnCount] = {QT_TR_NOOP("Name"),    QT_TR_NOOP("Type"),
                                                    QT_TR_NOOP("Value"),   QT_TR_NOOP("Default"),
                                                    QT_TR_NOOP("Ignored"), QT_TR_NOOP("Connected")};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= ColumnCount)
        return {};
    return tr(titles[section]);
}
