#include "FieldEditors/DvPopupFrame.h"

#include <QHideEvent>
#include <QScreen>

#include <algorithm>

DvPopupFrame::DvPopupFrame(QWidget* parent) : QFrame(parent, Qt::Popup)
{
    setFrameShape(QFrame::StyledPanel);
}

void DvPopupFrame::popUpBeside(const QWidget& widget)
{
    adjustSize();
    const QRect anchor(widget.mapToGlobal(QPoint(0, 0)), widget.size());
    const QRect screen = widget.screen()->availableGeometry();
    QPoint corner = anchor.bottomLeft() + QPoint(0, 1);
    if (corner.y() + height() > screen.bottom())
        corner.setY(anchor.top() - height());
    corner.setX(std::min(corner.x(), screen.right() + 1 - width()));
    corner.setY(std::min(corner.y(), screen.bottom() + 1 - height()));
    corner.setX(std::max(corner.x(), screen.left()));
    corner.setY(std::max(corner.y(), screen.top()));
    move(corner);
    show();
}

void DvPopupFrame::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous())
        emit aboutToClose();
    QFrame::hideEvent(event);
}
