#include "app/AppClick.h"

#include <QMouseEvent>

namespace {
/** Pixels that a hand may tremble between press and release. */
constexpr int Tremble = 3;
} // namespace

bool AppClick::completedBy(const QEvent& event)
{
    const auto type = event.type();
    if (type == QEvent::MouseButtonDblClick)
        m_possible = false;
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseMove &&
        type != QEvent::MouseButtonRelease)
        return false;
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    if (type == QEvent::MouseButtonPress) {
        m_pressed = mouse.pos();
        m_possible = mouse.button() == Qt::LeftButton && mouse.buttons() == Qt::LeftButton &&
                     mouse.modifiers() == Qt::NoModifier;
        return false;
    }
    const QPoint moved = mouse.pos() - m_pressed;
    m_possible = m_possible && qMax(qAbs(moved.x()), qAbs(moved.y())) <= Tremble;
    const bool completed = m_possible && type == QEvent::MouseButtonRelease;
    m_possible = m_possible && !completed;
    return completed;
}
