#pragma once

#include <Inventor/errors/SoError.h>

#include <array>

/**
 * The handlers of all six error classes of the scene graph library: replaced by one, and put back
 * as they were found.
 */
class ConsoleErrorHandlers
{
public:
    ~ConsoleErrorHandlers() { putBack(); }

    /** Saves the handlers of all classes, then installs this one. Twice saves only once. */
    void replace(SoErrorCB* callback, void* data);
    /** Puts the saved handlers back, also where another library has replaced them meanwhile. */
    void putBack();

private:
    struct Handler
    {
        SoErrorCB* callback;
        void* data;
    };

    std::array<Handler, 6> m_saved{};
    bool m_replaced = false;
};
