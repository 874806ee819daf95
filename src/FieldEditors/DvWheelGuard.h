#pragma once

#include <QObject>

class QWidget;

/** Lets the mouse wheel change a control's value only while the control has the focus: a wheel that
 *  scrolls a dock changes nothing on its way. */
class DvWheelGuard final : public QObject
{
    Q_OBJECT

public:
    static void install(QWidget& control);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QObject::QObject;
};
