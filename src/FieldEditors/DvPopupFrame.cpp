#include "FieldEditors/DvPopupFrame.h"

#include "FieldEditors/DvLayoutConstants.h"

#include <QGridLayout>
#include <QHideEvent>
#include <QScreen>

#include <algorithm>

DvPopupFrame::DvPopupFrame(QWidget* parent)
    : QFrame(parent, Qt::Popup), m_grid(new QGridLayout(this))
{
    setObjectName(QStringLiteral("m_popupFrame"));
    setFrameShape(QFrame::StyledPanel);
    setMinimumSize(DvLayoutConstants::value("PopupFrameWidth"),
                   DvLayoutConstants::value("PopupFrameHeight"));
    m_grid->setObjectName(QStringLiteral("m_popupFrameLayout"));
    const int margin = DvLayoutConstants::value("PopupLayoutMargin");
    m_grid->setContentsMargins(margin, margin, margin, margin);
    m_grid->setSpacing(DvLayoutConstants::value("PopupLayoutSpacing"));
}

void DvPopupFrame::popUpBeside(const QWidget& widget)
{
    const QRect anchor(widget.mapToGlobal(QPoint(0, 0)), widget.size());
    const QRect screen = widget.screen()->availableGeometry();
    // A line would like to be wide; a grid of them is then wider than the window.
    const QSize size = minimumSizeHint().expandedTo(minimumSize()).boundedTo(screen.size());
    QPoint corner = anchor.bottomLeft() + QPoint(0, 1);
    if (corner.y() + size.height() > screen.bottom() + 1)
        corner.setY(anchor.top() - size.height());
    corner.setX(std::min(corner.x(), screen.right() + 1 - size.width()));
    corner.setY(std::min(corner.y(), screen.bottom() + 1 - size.height()));
    corner.setX(std::max(corner.x(), screen.left()));
    corner.setY(std::max(corner.y(), screen.top()));
    // With its size set, showing the frame does not give it another.
    setGeometry(QRect(corner, size));
    show();
}

void DvPopupFrame::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous())
        emit aboutToClose();
    QFrame::hideEvent(event);
}
