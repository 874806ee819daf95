#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <ostream>
#include <streambuf>
#include <thread>
#include <vector>

/**
 * The buffer of a standard output stream while somebody listens to it: what is written goes to a
 * callback, on the thread that writes it. Single characters wait for the end of their line; a run
 * of characters, as most writes are, is passed on at once, with the line ends in it.
 *
 * The object outlives its owner: a thread may be writing just then, and a library that has put a
 * buffer of its own on top may put this one back later. Once retired it only hands everything to
 * the buffer that it had replaced.
 */
class StdStreamRedirector final : public std::basic_streambuf<char>
{
public:
    /** The text ends at its terminating zero, whatever the count says. */
    using Callback = void (*)(const char* text, std::int64_t count, void* data);

    /** What is there of a line; no string, to whose every addition a terminating zero belongs. */
    using Line = std::vector<char>;

    struct Retire
    {
        void operator()(StdStreamRedirector* redirector) const { redirector->retire(); }
    };
    /** Whoever listens; destroying it puts the former buffer back into the stream. */
    using Owner = std::unique_ptr<StdStreamRedirector, Retire>;

    /**
     * Takes the place of the stream's buffer. When the owner is destroyed no call of the callback
     * is under way any more, and none comes; the unfinished line is dropped. To be called, and the
     * owner to be destroyed, on one thread.
     */
    static Owner redirect(std::ostream& stream, Callback callback, void* data);

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize count) override;
    int sync() override;

private:
    StdStreamRedirector(std::ostream& stream, std::streambuf* previous);

    static StdStreamRedirector* retiredOn(const std::ostream& stream);
    void listen(Callback callback, void* data);
    void retire();

    bool isOwnThread() const;
    Line& lineOfThisThread();
    void put(char character, Line& line);
    void finish(Line& line);

    std::ostream* const m_stream;
    std::streambuf* const m_previous;
    Line m_line; ///< of the owner's thread
    Callback m_callback = nullptr;
    void* m_data = nullptr;

    std::atomic<std::thread::id> m_thread; ///< the owner's, while somebody listens
    std::atomic<bool> m_listening{false};
    std::atomic<unsigned> m_listener{0}; ///< counts those who have listened
    std::atomic<int> m_visitors{0};      ///< other threads that are in here now
};
