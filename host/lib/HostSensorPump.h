#pragma once

#include "TavrikHostExport.h"

#include <QObject>
#include <QTimer>

/**
 * Runs Coin's sensor queues from Qt's event loop, in programs where no GUI binding of Coin does it.
 *
 * It polls, cheaply, and never takes the callback by which Coin tells of a changed queue: there is
 * room for one only, which belongs to the GUI binding, and who takes it from a binding that comes
 * up later or has been there before stops that one's pictures.
 */
class TAVRIKHOST_EXPORT HostSensorPump : public QObject
{
    Q_OBJECT

public:
    explicit HostSensorPump(QObject* parent = nullptr);

    void start();
    void stop();

public slots:
    /** Runs what is due now. Calls from inside a sensor callback are ignored. */
    void pump();

private:
    QTimer m_timer;
    bool m_pumping = false;
};
