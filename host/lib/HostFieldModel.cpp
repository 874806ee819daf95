#include "lib/HostFieldModel.h"

#include "lib/HostFieldOrigin.h"
#include "lib/HostFieldSummary.h"
#include "lib/HostText.h"

#include <Inventor/SbName.h>
#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldData.h>
#include <Inventor/lists/SoFieldList.h>
#include <Inventor/nodes/SoNode.h>

#include <QTextDocument>
#include <QTimerEvent>

#include <algorithm>

namespace {

/** Of values for the filter, in one turn of the event loop: some milliseconds' work. */
constexpr int ReadsAtOnce = 128;

std::vector<SoField*> fieldsOf(const SoNode* node)
{
    SoFieldList list;
    const int count = node ? node->getFields(list) : 0;
    std::vector<SoField*> fields(size_t(count), nullptr);
    for (int i = 0; i < count; ++i)
        fields[size_t(i)] = list[i];
    return fields;
}

/** What one of the narrow columns marks. */
struct Mark
{
    const char* letter;
    const char* name;
    const char* meaning;
    SbBool (*isOn)(const SoField& field);
};

const Mark& markOf(int column)
{
    static const Mark s_marks[] = {
        {QT_TRANSLATE_NOOP("HostFieldModel", "D"), QT_TRANSLATE_NOOP("HostFieldModel", "Default"),
         QT_TRANSLATE_NOOP("HostFieldModel", "The field has its default value"),
         [](const SoField& field) { return field.isDefault(); }},
        {QT_TRANSLATE_NOOP("HostFieldModel", "I"), QT_TRANSLATE_NOOP("HostFieldModel", "Ignored"),
         QT_TRANSLATE_NOOP("HostFieldModel", "The field is ignored"),
         [](const SoField& field) { return field.isIgnored(); }},
        {QT_TRANSLATE_NOOP("HostFieldModel", "C"), QT_TRANSLATE_NOOP("HostFieldModel", "Connected"),
         QT_TRANSLATE_NOOP("HostFieldModel",
                           "The field is connected: its value comes from another"),
         [](const SoField& field) { return field.isConnected(); }},
    };
    return s_marks[column - HostFieldModel::DefaultColumn];
}

bool isMark(int column)
{
    return column >= HostFieldModel::DefaultColumn && column < HostFieldModel::ColumnCount;
}

/** A tool tip that looks like HTML would be shown as such. */
QString plain(const QString& text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    return QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped());
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

void HostFieldModel::setFilter(const QString& text)
{
    m_filter.setText(text);
    updateRows();
}

void HostFieldModel::nodeDied(void* model, SoSensor*)
{
    auto* const self = static_cast<HostFieldModel*>(model);
    self->reset(nullptr);
    emit self->nodeGone();
}

void HostFieldModel::reset(SoNode* node)
{
    // Already empty while the reset is announced: nobody may touch the fields of a dying node.
    m_fields.clear();
    m_rows.clear();
    m_sensor.takeChanged();
    m_node = nullptr;
    beginResetModel();
    m_node = node;
    m_fields = fieldsOf(node);
    m_filter.setCount(int(m_fields.size()));
    m_rows = acceptedFields();
    endResetModel();
}

void HostFieldModel::nodeChanged(void* model, SoSensor*)
{
    static_cast<HostFieldModel*>(model)->refresh();
}

void HostFieldModel::refresh()
{
    const HostFieldsSensor::Fields changed = m_sensor.takeChanged();
    // A node of a type that Coin does not know may be given more fields at any time.
    if (fieldsOf(m_node) != m_fields) {
        reset(m_node);
        return;
    }
    for (int i = 0; i < int(m_fields.size()); ++i)
        if (changed.count(m_fields[size_t(i)]) > 0)
            m_filter.forgetValue(i);
    if (!updateRows() && !m_rows.empty())
        emit dataChanged(index(0, ValueColumn), index(rowCount() - 1, ConnectedColumn));
}

/** Answers whether other rows are shown than before. */
bool HostFieldModel::updateRows()
{
    std::vector<int> rows = acceptedFields();
    if (rows == m_rows)
        return false;
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
    return true;
}

std::vector<int> HostFieldModel::acceptedFields()
{
    std::vector<int> accepted;
    bool isUnread = false;
    const HostFieldFilter::Naming naming = [this](int index) { return name(index); };
    m_filter.allowReads(ReadsAtOnce);
    for (int i = 0; i < int(m_fields.size()); ++i) {
        const auto answer = m_filter.accepts(i, *m_fields[size_t(i)], naming);
        isUnread = isUnread || answer == HostFieldFilter::Unread;
        if (answer == HostFieldFilter::Yes)
            accepted.push_back(i);
    }
    if (isUnread)
        m_readOn.start(0, this);
    else
        m_readOn.stop();
    return accepted;
}

void HostFieldModel::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_readOn.timerId())
        updateRows();
    else
        QAbstractTableModel::timerEvent(event);
}

/** The container would look for the field among all of its fields. */
QString HostFieldModel::name(int index) const
{
    SoField& field = *m_fields[size_t(index)];
    const SoFieldContainer& container = *m_node;
    const SoFieldData* const data = container.getFieldData();
    const bool isThere = data && index < data->getNumFields();
    if (isThere && data->getField(&container, index) == &field)
        return HostText::fromCoin(data->getFieldName(index));
    return HostFieldOrigin::name(field);
}

SoField* HostFieldModel::field(int row) const
{
    return row >= 0 && row < rowCount() ? m_fields[size_t(m_rows[size_t(row)])] : nullptr;
}

int HostFieldModel::row(const SoField* field) const
{
    const auto isIt = [&](int index) { return m_fields[size_t(index)] == field; };
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), isIt);
    return found != m_rows.end() ? int(found - m_rows.begin()) : -1;
}

int HostFieldModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int HostFieldModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant HostFieldModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !field(index.row()))
        return {};
    if (role == Qt::DisplayRole)
        return display(index.row(), index.column());
    if (role == Qt::TextAlignmentRole && isMark(index.column()))
        return int(Qt::AlignCenter);
    if (role == Qt::ToolTipRole)
        return toolTip(index.row(), index.column());
    if (role == Qt::AccessibleTextRole && isMark(index.column())) {
        const Mark& mark = markOf(index.column());
        return mark.isOn(*field(index.row())) ? tr(mark.name) : QString();
    }
    return {};
}

QVariant HostFieldModel::display(int row, int column) const
{
    SoField& shown = *field(row);
    switch (column) {
    case NameColumn:
        return name(m_rows[size_t(row)]);
    case TypeColumn:
        return HostText::fromCoin(shown.getTypeId().getName());
    case ValueColumn:
        return HostFieldSummary::text(shown);
    default:
        return markOf(column).isOn(shown) ? QString(QChar(0x2713)) : QString();
    }
}

QVariant HostFieldModel::toolTip(int row, int column) const
{
    SoField& shown = *field(row);
    if (!isMark(column))
        return plain(display(row, column).toString());
    if (!markOf(column).isOn(shown))
        return {};
    if (column != ConnectedColumn)
        return tr(markOf(column).meaning);
    return plain(tr("Connected from %1").arg(HostFieldOrigin::connections(shown)));
}

QVariant HostFieldModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const char* const titles[] = {QT_TR_NOOP("Name"), QT_TR_NOOP("Type"),
                                         QT_TR_NOOP("Value")};
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount)
        return {};
    if (!isMark(section))
        return role == Qt::DisplayRole ? tr(titles[section]) : QVariant();
    if (role == Qt::DisplayRole)
        return tr(markOf(section).letter);
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignCenter);
    if (role == Qt::AccessibleTextRole)
        return tr(markOf(section).name);
    if (role == Qt::ToolTipRole)
        return tr("%1: %2").arg(tr(markOf(section).name), tr(markOf(section).meaning));
    return {};
}
