#pragma once

#include <TvkServices.h>

#include <new>
#include <utility>

/** Makes the undo commands and hands them to the host. */
class DvCommands
{
public:
    /**
     * Hands a new command on to the host, which executes and owns it; a null one where there was no
     * memory for it. Without a host, nothing is made: nobody could undo it.
     */
    template <class Command, class... Arguments>
    static void push(Arguments&&... arguments)
    {
        if (TvkServices* const services = TvkServices::getInstance())
            services->pushCommand(new (std::nothrow)
                                      Command(std::forward<Arguments>(arguments)...));
    }
};
