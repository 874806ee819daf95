#pragma once

#include <Inventor/SbString.h>
#include <Inventor/errors/SoError.h>

#include <atomic>
#include <cstdarg>

/**
 * What every error class of ours shares: a type of its own, a handler of its own, and post(). A
 * class is made by deriving from SoErrorKind of itself and instantiating the template in its own
 * source file, so that type and handler exist once in the process.
 *
 * A report goes to the class's handler, or to SoError's where none was set, and nowhere while there
 * is neither; it is delivered exactly once, on the thread that posts it.
 */
template <class Error>
class SoErrorKind : public SoError
{
public:
    static SoType getClassTypeId() { return s_type; }
    SoType getTypeId() const override { return s_type; }

    /** A null callback takes the class's own handler away again. */
    static void setHandlerCallback(SoErrorCB* callback, void* data);
    /** The class's own handler, null while its reports go to SoError's: given to
     *  setHandlerCallback() again, either leaves everything as it was. */
    static SoErrorCB* getHandlerCallback() { return s_callback; }
    static void* getHandlerData() { return s_data; }

    static void post(const char* format, ...);

protected:
    SoErrorCBPtr getHandler(void*& data) const override;

    /** Registers the class with Coin, the first time that it is called. */
    static void registerType(const char* name);

private:
    static SoType s_type;
    // Any thread may report while another one sets the handler.
    static std::atomic<SoErrorCB*> s_callback;
    static std::atomic<void*> s_data;
};

template <class Error>
SoType SoErrorKind<Error>::s_type;
template <class Error>
std::atomic<SoErrorCB*> SoErrorKind<Error>::s_callback{nullptr};
template <class Error>
std::atomic<void*> SoErrorKind<Error>::s_data{nullptr};

template <class Error>
void SoErrorKind<Error>::setHandlerCallback(SoErrorCB* callback, void* data)
{
    s_callback = callback;
    s_data = data;
}

template <class Error>
void SoErrorKind<Error>::post(const char* format, ...)
{
    SbString text;
    va_list arguments;
    va_start(arguments, format);
    text.vsprintf(format, arguments);
    va_end(arguments);

    Error error;
    error.setDebugString(text.getString());
    // Not handleError(): it looks the handler up by SoError's own table and would pass ours over.
    void* data = nullptr;
    if (SoErrorCBPtr handler = error.getHandler(data))
        handler(&error, data);
}

template <class Error>
SoErrorCBPtr SoErrorKind<Error>::getHandler(void*& data) const
{
    if (SoErrorCB* const own = s_callback) {
        data = s_data;
        return own;
    }
    data = SoError::getHandlerData();
    return SoError::getHandlerCallback();
}

template <class Error>
void SoErrorKind<Error>::registerType(const char* name)
{
    if (s_type.isBad())
        s_type = SoType::createType(SoError::getClassTypeId(), name);
}
