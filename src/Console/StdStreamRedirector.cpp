#include "Console/StdStreamRedirector.h"

#include <algorithm>
#include <map>
#include <string>

namespace {

/** Counts a thread in for as long as it is in a redirector. */
class Visit
{
public:
    explicit Visit(std::atomic<int>& visitors) : m_visitors(visitors) { ++m_visitors; }
    ~Visit() { --m_visitors; }
    Visit(const Visit&) = delete;
    Visit& operator=(const Visit&) = delete;

private:
    std::atomic<int>& m_visitors;
};

struct ForeignLine
{
    unsigned listener = 0;
    StdStreamRedirector::Line text;
};

/** The unfinished lines of this thread, where it is not the listener's. */
thread_local std::map<const StdStreamRedirector*, ForeignLine> t_lines;

/** Never destroyed: threads may still write while the process ends. */
std::vector<StdStreamRedirector*>& retired()
{
    static auto& redirectors = *new std::vector<StdStreamRedirector*>;
    return redirectors;
}

} // namespace

StdStreamRedirector::StdStreamRedirector(std::ostream& stream, std::streambuf* previous)
    : m_stream(&stream), m_previous(previous)
{}

StdStreamRedirector::Owner StdStreamRedirector::redirect(std::ostream& stream, Callback callback,
                                                         void* data)
{
    StdStreamRedirector* redirector = retiredOn(stream);
    if (!redirector)
        redirector = new StdStreamRedirector(stream, stream.rdbuf());
    redirector->listen(callback, data);
    stream.rdbuf(redirector);
    return Owner(redirector);
}

/** A retired one is used again only above the very buffer that it was above before: otherwise two
 *  buffers could come to pass what they are given to each other for ever. */
StdStreamRedirector* StdStreamRedirector::retiredOn(const std::ostream& stream)
{
    const auto fits = [&](const StdStreamRedirector* one) {
        return one->m_stream == &stream && one->m_previous == stream.rdbuf();
    };
    const auto found = std::find_if(retired().begin(), retired().end(), fits);
    if (found == retired().end())
        return nullptr;
    StdStreamRedirector* const redirector = *found;
    retired().erase(found);
    return redirector;
}

void StdStreamRedirector::listen(Callback callback, void* data)
{
    m_callback = callback;
    m_data = data;
    ++m_listener;
    m_listening = true;
    m_thread = std::this_thread::get_id();
}

void StdStreamRedirector::retire()
{
    // Also when another library has replaced this buffer meanwhile: what was found is put back.
    m_stream->rdbuf(m_previous);
    m_thread = std::thread::id();
    m_listening = false;
    while (m_visitors != 0)
        std::this_thread::yield();
    m_line.clear();
    retired().push_back(this);
}

/** Never while nobody listens: then no thread has the id. */
bool StdStreamRedirector::isOwnThread() const
{
    return m_thread.load(std::memory_order_relaxed) == std::this_thread::get_id();
}

StdStreamRedirector::int_type StdStreamRedirector::overflow(int_type character)
{
    if (traits_type::eq_int_type(character, traits_type::eof()))
        return 0;
    const char byte = traits_type::to_char_type(character);
    // The owner's thread cannot be here while it retires the redirector, and need not be counted.
    if (isOwnThread()) {
        put(byte, m_line);
        return character;
    }
    const Visit visit(m_visitors);
    if (!m_listening)
        return m_previous ? m_previous->sputc(byte) : traits_type::eof();
    put(byte, lineOfThisThread());
    return character;
}

/** Short, since every character comes this way: there can be no buffer in front, which threads
 * would have to share. */
void StdStreamRedirector::put(char character, Line& line)
{
    if (character != '\n')
        line.push_back(character);
    else
        finish(line);
}

void StdStreamRedirector::finish(Line& line)
{
    // The listener may write a line itself.
    Line finished;
    finished.swap(line);
    finished.push_back('\0');
    // Kept on purpose: a line is announced with a count of 1, not with its length.
    m_callback(finished.data(), 1, m_data);
}

StdStreamRedirector::Line& StdStreamRedirector::lineOfThisThread()
{
    ForeignLine& line = t_lines[this];
    if (line.listener != m_listener)
        line = {m_listener, {}};
    return line.text;
}

std::streamsize StdStreamRedirector::xsputn(const char* text, std::streamsize count)
{
    // The run ends with its count, not with a zero.
    const std::string run(text, static_cast<std::size_t>(count));
    if (isOwnThread()) {
        m_callback(run.c_str(), count, m_data);
        return count;
    }
    const Visit visit(m_visitors);
    if (!m_listening)
        return m_previous ? m_previous->sputn(text, count) : 0;
    m_callback(run.c_str(), count, m_data);
    return count;
}

int StdStreamRedirector::sync()
{
    return m_listening || !m_previous ? 0 : m_previous->pubsync();
}
