#pragma once

#include <Inventor/errors/SoError.h>

#include <array>

/**
 * What the scene graph library reports goes to the standard error stream, too, where a plug-in has
 * taken the place of the library's own handlers: nobody reads the window of a job. Read errors are
 * left out; whoever reads a scene tells of them.
 */
class AppErrorEcho
{
public:
    /** To be made before the plug-ins are loaded. */
    AppErrorEcho();
    /** To be destroyed before them. */
    ~AppErrorEcho();
    AppErrorEcho(const AppErrorEcho&) = delete;
    AppErrorEcho& operator=(const AppErrorEcho&) = delete;

    /** From now on; to be called once the plug-ins are loaded. */
    void start();

private:
    struct Handler
    {
        SoErrorCB* callback = nullptr;
        void* data = nullptr;
    };
    using Handlers = std::array<Handler, 3>;

    static Handlers current();
    static void echo(const SoError* error, void* handler);

    const Handlers m_first;
    Handlers m_replaced; ///< no callback where nothing was replaced
};
