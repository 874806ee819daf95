#include "app/AppExaminerViewer.h"

#include "scenegraph/SoGLError.h"

#include <QOpenGLContext>
#include <QOpenGLFunctions>

namespace {

/** There is one flag for each kind of error; a context that is lost answers for ever. */
constexpr int MostErrors = 8;

struct ErrorName
{
    GLenum error;
    const char* name;
};

constexpr ErrorName Names[] = {
    {GL_INVALID_ENUM, "GL_INVALID_ENUM"},
    {GL_INVALID_VALUE, "GL_INVALID_VALUE"},
    {GL_INVALID_OPERATION, "GL_INVALID_OPERATION"},
    {GL_STACK_OVERFLOW, "GL_STACK_OVERFLOW"},
    {GL_STACK_UNDERFLOW, "GL_STACK_UNDERFLOW"},
    {GL_OUT_OF_MEMORY, "GL_OUT_OF_MEMORY"},
    {GL_INVALID_FRAMEBUFFER_OPERATION, "GL_INVALID_FRAMEBUFFER_OPERATION"},
    {GL_CONTEXT_LOST, "GL_CONTEXT_LOST"},
};

std::set<unsigned> takeErrors()
{
    std::set<unsigned> errors;
    QOpenGLContext* const context = QOpenGLContext::currentContext();
    for (int i = 0; context && i < MostErrors; ++i) {
        const GLenum error = context->functions()->glGetError();
        if (error == GL_NO_ERROR)
            break;
        errors.insert(error);
    }
    return errors;
}

void report(unsigned error)
{
    for (const ErrorName& known : Names)
        if (known.error == error)
            return SoGLError::post("OpenGL error after a frame: %s", known.name);
    SoGLError::post("OpenGL error after a frame: 0x%04X", error);
}

} // namespace

void AppExaminerViewer::actualRedraw()
{
    takeErrors(); // of whoever has drawn before: they are not this frame's
    SoQtExaminerViewer::actualRedraw();
    std::set<unsigned> errors = takeErrors();
    m_errors.swap(errors);
    for (const unsigned error : m_errors)
        if (errors.count(error) == 0)
            report(error);
}
