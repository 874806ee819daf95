#pragma once

#include <QImage>
#include <QPoint>

#include <functional>

class QString;
class QWidget;

/** Uses the program as a user does, with the mouse and the keyboard, and looks at the screen. */
namespace AppRobot {

/** Lets the program work for a while. */
void wait(int milliseconds);
/** Lets it work until a condition holds; false when it never does. */
bool waitUntil(const std::function<bool()>& condition, int milliseconds = 10000);

void click(QWidget& widget, const QPoint& position);
void click(QWidget& widget);
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void type(const QString& text);

/** What the screen shows of a widget, its frame included if it is a window. */
QImage picture(const QWidget& widget);
/** Whether a 3D picture reaches into its corners: what is not drawn yet is black. */
bool isCovered(const QImage& picture);
/** The same, and there is something in it. */
bool isDrawn(const QImage& picture);
/** Whether more than a few pixels differ. */
bool differ(const QImage& one, const QImage& other);

} // namespace AppRobot
