#pragma once

#include "lib/HostServices.h"

#include "tests/host/SelectionListener.h"

#include <memory>

class SoCone;

/** A test of the host's services: each function gets new ones, a listener and a cone to select. */
class ServicesTest : public QObject
{
    Q_OBJECT

protected:
    /** Lets go of the cone, which nobody else references. */
    void killCone();

    QStringList m_commands; ///< outlives the commands that write into it
    std::unique_ptr<HostServices> m_services;
    std::unique_ptr<SelectionListener> m_listener;
    SoCone* m_cone = nullptr;

private slots:
    void init();
    void cleanup();
};
