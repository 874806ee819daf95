#include <QtGlobal>

// A library with all that a plug-in takes, which yet makes none.

extern "C" {

Q_DECL_EXPORT void* loadPlugin()
{
    return nullptr;
}

Q_DECL_EXPORT void unloadPlugin() {}
}
