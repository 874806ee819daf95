#include <QtGlobal>

// A library that is no plug-in: it can be opened and has none of the functions, or only the first.

extern "C" {

#ifdef TEST_HALF_PLUGIN
Q_DECL_EXPORT void* loadPlugin()
{
    return nullptr;
}
#else
Q_DECL_EXPORT int someFunction()
{
    return 0;
}
#endif
}
