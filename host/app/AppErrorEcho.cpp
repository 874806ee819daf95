#include "app/AppErrorEcho.h"

#include "scenegraph/SoGLError.h"

#include <Inventor/errors/SoDebugError.h>

#include <cstdio>

namespace {

using SetHandler = void (*)(SoErrorCB*, void*);

const std::array<SetHandler, 3> Setters = {
    [](SoErrorCB* callback, void* data) { SoDebugError::setHandlerCallback(callback, data); },
    [](SoErrorCB* callback, void* data) { SoError::setHandlerCallback(callback, data); },
    [](SoErrorCB* callback, void* data) { SoGLError::setHandlerCallback(callback, data); },
};

} // namespace

AppErrorEcho::AppErrorEcho() : m_first(current()) {}

AppErrorEcho::~AppErrorEcho()
{
    for (std::size_t i = 0; i < Setters.size(); ++i)
        if (m_replaced[i].callback)
            Setters[i](m_replaced[i].callback, m_replaced[i].data);
}

AppErrorEcho::Handlers AppErrorEcho::current()
{
    return {{{SoDebugError::getHandlerCallback(), SoDebugError::getHandlerData()},
             {SoError::getHandlerCallback(), SoError::getHandlerData()},
             {SoGLError::getHandlerCallback(), SoGLError::getHandlerData()}}};
}

void AppErrorEcho::start()
{
    const Handlers now = current();
    for (std::size_t i = 0; i < now.size(); ++i) {
        // The library's own handlers write to the standard error stream already.
        if (!now[i].callback || now[i].callback == m_first[i].callback)
            continue;
        m_replaced[i] = now[i];
        Setters[i](&AppErrorEcho::echo, &m_replaced[i]);
    }
}

void AppErrorEcho::echo(const SoError* error, void* handler)
{
    std::fprintf(stderr, "%s\n", error->getDebugString().getString());
    const auto& replaced = *static_cast<const Handler*>(handler);
    replaced.callback(error, replaced.data);
}
