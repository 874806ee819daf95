#include "tests/host/ServicesTest.h"

#include <Inventor/nodes/SoCone.h>

void ServicesTest::killCone()
{
    m_cone->unref();
    m_cone = nullptr;
}

void ServicesTest::init()
{
    m_commands.clear();
    m_services = std::make_unique<HostServices>();
    m_listener = std::make_unique<SelectionListener>(*m_services);
    m_cone = new SoCone;
    m_cone->ref();
}

void ServicesTest::cleanup()
{
    m_services.reset();
    m_listener.reset();
    if (m_cone)
        killCone();
}
