#include "Console/ConsoleInbox.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>
#include <thread>

namespace {

using ConsoleEvent = TvkConsole::ConsoleEvent;

constexpr int MostPosted = 64;
constexpr int SliceMilliseconds = 2;
constexpr int EventsBetweenLooksAtTheClock = 32;

} // namespace

/**
 * Through which threads find an inbox. A thread that has stepped in keeps the inbox alive; doors
 * are never destroyed, so that one that comes late finds a closed door and nothing worse.
 */
struct ConsoleInbox::Door
{
    std::atomic<const void*> console{nullptr};
    std::atomic<int> visitors{0};
    ConsoleInbox* inbox = nullptr;
    Door* next = nullptr;

    static std::atomic<Door*> first;
};

std::atomic<ConsoleInbox::Door*> ConsoleInbox::Door::first{nullptr};

ConsoleInbox::ConsoleInbox(TvkConsole& console) : m_console(console), m_door(freeDoor())
{
    m_door.inbox = this;
    m_door.console = &console;
}

ConsoleInbox::~ConsoleInbox() = default;

void ConsoleInbox::close()
{
    m_door.console = nullptr;
    while (m_door.visitors != 0)
        std::this_thread::yield();
    QCoreApplication::sendPostedEvents(&m_console, ConsoleEvent::Type);
    while (deliverNext()) {
    }
    endChain();
}

/** Consoles are made on the thread of the user interface only. */
ConsoleInbox::Door& ConsoleInbox::freeDoor()
{
    for (Door* door = Door::first; door; door = door->next)
        if (!door->console)
            return *door;
    auto* const door = new Door;
    door->next = Door::first;
    Door::first = door;
    return *door;
}

void ConsoleInbox::writeToStandardError(const QString& text)
{
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
}

void ConsoleInbox::send(const void* console, const QString& text, int kind)
{
    for (Door* door = Door::first; door; door = door->next) {
        if (door->console != console)
            continue;
        ++door->visitors;
        // Only now it is certain that the inbox stays.
        const bool isOpen = door->console == console;
        if (isOpen)
            door->inbox->take(new ConsoleEvent(text, kind));
        --door->visitors;
        if (isOpen)
            return;
    }
    writeToStandardError(text);
}

void ConsoleInbox::take(ConsoleEvent* event)
{
    ConsoleEvent* newest = m_newest;
    do {
        if (newest)
            continue;
        event->isPosted = true;
        if (++m_posted <= MostPosted) {
            QCoreApplication::postEvent(&m_console, event);
            return;
        }
        event->isPosted = false;
        --m_posted;
    } while (!m_newest.compare_exchange_weak(newest, event));
    // From here on the next but one may be chained, and this one be handled as soon as it is
    // linked.
    (newest ? newest : &m_start)->next = event;
    if (!newest)
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void ConsoleInbox::received(const ConsoleEvent& event)
{
    if (event.isPosted)
        --m_posted;
}

void ConsoleInbox::customEvent(QEvent*)
{
    m_nextTurn.start(0, this);
}

/** A timer, and not an event that posts itself: posted events are handled to the last before
 *  anything else has its turn. */
void ConsoleInbox::timerEvent(QTimerEvent*)
{
    if (!deliverSome())
        m_nextTurn.stop();
}

/** Whether there may be more. */
bool ConsoleInbox::deliverSome()
{
    QElapsedTimer clock;
    clock.start();
    do {
        for (int i = 0; i < EventsBetweenLooksAtTheClock; ++i)
            if (!deliverNext())
                return !endChain();
    } while (clock.elapsed() < SliceMilliseconds);
    return true;
}

/** Whether there was one: none is there either while a thread has not linked what it has chained.
 */
bool ConsoleInbox::deliverNext()
{
    ConsoleEvent* const next = m_handled->next;
    if (!next)
        return false;
    forgetHandled();
    m_handled = next;
    // The same thread may have posted one before it chained this.
    if (m_posted != 0)
        QCoreApplication::sendPostedEvents(&m_console, ConsoleEvent::Type);
    // A copy, since whatever comes of it may ask for the next one.
    ConsoleEvent message(next->text, next->kind);
    QCoreApplication::sendEvent(&m_console, &message);
    return true;
}

/** Once all is handled messages may be posted one by one again; false while there is more. */
bool ConsoleInbox::endChain()
{
    if (m_handled == &m_start)
        return !m_newest;
    m_start.next = nullptr;
    ConsoleEvent* newest = m_handled;
    if (!m_newest.compare_exchange_strong(newest, nullptr))
        return false;
    forgetHandled();
    m_handled = &m_start;
    return true;
}

void ConsoleInbox::forgetHandled()
{
    if (m_handled != &m_start)
        delete m_handled;
}
