#include "lib/HostNodeLook.h"

#include "lib/HostParents.h"
#include "lib/HostSceneModel.h"
#include "lib/HostText.h"

#include <Inventor/SbName.h>
#include <Inventor/nodes/SoNode.h>

#include <QCoreApplication>
#include <QFont>
#include <QPainter>
#include <QPixmap>

namespace {

/** Two rings that overlap: several parents. */
QIcon drawSharedIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x2f, 0x7f, 0xc4), 1.8));
    painter.drawEllipse(QRectF(1.5, 4, 8, 8));
    painter.drawEllipse(QRectF(6.5, 4, 8, 8));
    return {pixmap};
}

} // namespace

HostNodeLook::HostNodeLook() : m_sharedIcon(drawSharedIcon()) {}

bool HostNodeLook::isShown(int role)
{
    return role == Qt::DisplayRole || role == Qt::FontRole || role == Qt::ToolTipRole ||
           role == Qt::DecorationRole;
}

QVariant HostNodeLook::data(const SoNode& node, int column, int role) const
{
    if (role != Qt::DisplayRole)
        return sharedData(HostParents::count(node, m_ownParent), column, role);
    if (column == HostSceneModel::TypeColumn)
        return HostText::fromCoin(node.getTypeId().getName());
    if (column == HostSceneModel::NameColumn)
        return HostText::fromCoin(node.getName());
    return HostParents::count(node, m_ownParent);
}

QVariant HostNodeLook::sharedData(int parents, int column, int role) const
{
    if (parents < 2)
        return {};
    if (role == Qt::ToolTipRole)
        return QCoreApplication::translate("HostNodeLook", "Shared by %1 parents").arg(parents);
    if (role == Qt::DecorationRole)
        return column == HostSceneModel::TypeColumn ? QVariant(m_sharedIcon) : QVariant();
    QFont italic;
    italic.setItalic(true);
    return italic;
}
