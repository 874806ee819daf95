#pragma once

#include <TvkExtension.h>

#include <QVector>

#include <functional>
#include <memory>

/** An extension that puts a dock or a tool bar into the host's window. */
struct DockExtensionRow
{
    const char* className;
    std::function<std::unique_ptr<TvkExtension>()> make;
    const char* title;           ///< of its dock or tool bar
    const char* kind;            ///< "DockWidget" or "ToolBar", as in the shell's operations
    int area;                    ///< where it asks to be put
    bool registersFirst = false; ///< before it is put into the window
};

/** All of them, a row each. */
const QVector<DockExtensionRow>& dockExtensions();
