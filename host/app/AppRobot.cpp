#include "app/AppRobot.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <algorithm>

namespace {

/** Fewer may come from a blinking cursor or from rounding in the drawing. */
constexpr int FewPixels = 20;

void sendMouse(QWidget& widget, QEvent::Type type, const QPoint& position)
{
    const Qt::MouseButtons buttons =
        type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QMouseEvent event(type, position, widget.mapTo(widget.window(), position),
                      widget.mapToGlobal(position), Qt::LeftButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

void sendKey(int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (QWidget* focused = QApplication::focusWidget()) {
            QKeyEvent event(type, key, modifiers, text);
            QApplication::sendEvent(focused, &event);
        }
    }
}

} // namespace

void AppRobot::wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, SLOT(quit()));
    loop.exec();
}

bool AppRobot::waitUntil(const std::function<bool()>& condition, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.hasExpired(milliseconds))
            return false;
        wait(50);
    }
    return true;
}

void AppRobot::click(QWidget& widget, const QPoint& position)
{
    if (widget.focusPolicy() & Qt::ClickFocus)
        widget.setFocus(Qt::MouseFocusReason);
    sendMouse(widget, QEvent::MouseButtonPress, position);
    wait(30);
    sendMouse(widget, QEvent::MouseButtonRelease, position);
    wait(30);
}

void AppRobot::click(QWidget& widget)
{
    click(widget, widget.rect().center());
}

void AppRobot::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    sendKey(key, modifiers, key == Qt::Key_Return ? QStringLiteral("\r") : QString());
    wait(30);
}

void AppRobot::type(const QString& text)
{
    for (const QChar character : text) {
        sendKey(character.toUpper().unicode(), Qt::NoModifier, character);
        wait(20);
    }
}

QImage AppRobot::picture(const QWidget& widget)
{
    const QRect area = widget.isWindow() ? widget.frameGeometry()
                                         : QRect(widget.mapToGlobal(QPoint()), widget.size());
    return widget.screen()
        ->grabWindow(0, area.x(), area.y(), area.width(), area.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

bool AppRobot::isCovered(const QImage& picture)
{
    const QRect area = picture.rect();
    const auto corners = {area.topLeft(), area.topRight(), area.bottomLeft(), area.bottomRight()};
    return std::none_of(corners.begin(), corners.end(), [&picture](const QPoint& corner) {
        return picture.pixel(corner) == qRgb(0, 0, 0);
    });
}

bool AppRobot::isDrawn(const QImage& picture)
{
    if (!isCovered(picture))
        return false;
    QImage plain(picture.size(), picture.format());
    plain.fill(picture.pixel(0, 0));
    return differ(picture, plain);
}

bool AppRobot::differ(const QImage& one, const QImage& other)
{
    if (one.size() != other.size())
        return true;
    int different = 0;
    for (int y = 0; y < one.height() && different <= FewPixels; ++y)
        for (int x = 0; x < one.width(); ++x)
            different += one.pixel(x, y) != other.pixel(x, y);
    return different > FewPixels;
}
