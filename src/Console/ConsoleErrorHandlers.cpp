#include "Console/ConsoleErrorHandlers.h"

#include "scenegraph/SoErrorStack.h"
#include "scenegraph/SoGLError.h"

#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoMemoryError.h>
#include <Inventor/errors/SoReadError.h>

#include <type_traits>

namespace {

struct ErrorClass
{
    SoErrorCB* (*callback)();
    void* (*data)();
    void (*setHandler)(SoErrorCB*, void*);
    bool mayHaveNone; ///< Coin's own classes call their handler without looking at it
};

template <class Error>
ErrorClass errorClass()
{
    return {[] { return Error::getHandlerCallback(); }, [] { return Error::getHandlerData(); },
            [](SoErrorCB* callback, void* data) { Error::setHandlerCallback(callback, data); },
            std::is_base_of_v<SoErrorKind<Error>, Error>};
}

using ErrorClasses = std::array<ErrorClass, 6>;

const ErrorClasses& errorClasses()
{
    static const ErrorClasses classes = {errorClass<SoDebugError>(),  errorClass<SoError>(),
                                         errorClass<SoErrorStack>(),  errorClass<SoGLError>(),
                                         errorClass<SoMemoryError>(), errorClass<SoReadError>()};
    return classes;
}

} // namespace

void ConsoleErrorHandlers::replace(SoErrorCB* callback, void* data)
{
    if (m_replaced)
        return;
    m_replaced = true;
    const ErrorClasses& classes = errorClasses();
    for (std::size_t i = 0; i < classes.size(); ++i)
        m_saved[i] = {classes[i].callback(), classes[i].data()};
    for (const ErrorClass& one : classes)
        one.setHandler(callback, data);
}

void ConsoleErrorHandlers::putBack()
{
    if (!m_replaced)
        return;
    m_replaced = false;
    const ErrorClasses& classes = errorClasses();
    for (std::size_t i = 0; i < classes.size(); ++i)
        if (m_saved[i].callback || classes[i].mayHaveNone)
            classes[i].setHandler(m_saved[i].callback, m_saved[i].data);
}
