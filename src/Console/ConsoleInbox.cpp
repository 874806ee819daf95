#include "Console/ConsoleInbox.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>
#include <memory>
#include <thread>

namespace {

using ConsoleEvent = TvkConsole::ConsoleEvent;

constexpr int MostPosted = 64;
constexpr int SliceMilliseconds = 4;
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

ConsoleInbox::ConsoleInbox(TvkConsole& console)
    : m_console(console), m_door(freeDoor()), m_rest(endOfChain())
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
    while (const std::unique_ptr<ConsoleEvent> event{nextInOrder()})
        QCoreApplication::sendEvent(&m_console, event.get());
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

/** Marks the end of a chain; that it is no null pointer tells an empty chain from none. */
ConsoleEvent* ConsoleInbox::endOfChain()
{
    static ConsoleEvent end({}, 0);
    return &end;
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
    ConsoleEvent* newest = m_chain;
    do {
        if (!newest) {
            event->isPosted = true;
            if (++m_posted <= MostPosted) {
                QCoreApplication::postEvent(&m_console, event);
                return;
            }
            event->isPosted = false;
            --m_posted;
        }
        event->next = newest ? newest : endOfChain();
    } while (!m_chain.compare_exchange_weak(newest, event));
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
        for (int i = 0; i < EventsBetweenLooksAtTheClock; ++i) {
            const std::unique_ptr<ConsoleEvent> event(nextInOrder());
            if (!event)
                return false;
            QCoreApplication::sendEvent(&m_console, event.get());
        }
    } while (clock.elapsed() < SliceMilliseconds);
    return true;
}

ConsoleEvent* ConsoleInbox::nextInOrder()
{
    if (m_rest == endOfChain())
        m_rest = takeChain();
    if (m_rest == endOfChain())
        return nullptr;
    ConsoleEvent* const event = m_rest;
    m_rest = event->next;
    return event;
}

/** What has been chained since the last time, the oldest first; the end alone when messages may be
 *  posted one by one again. */
ConsoleEvent* ConsoleInbox::takeChain()
{
    ConsoleEvent* const end = endOfChain();
    ConsoleEvent* newest = end;
    if (!m_chain || m_chain.compare_exchange_strong(newest, nullptr))
        return end;
    newest = m_chain.exchange(end);
    // A thread that found no chain has posted its message by now if it has chained a later one.
    QCoreApplication::sendPostedEvents(&m_console, ConsoleEvent::Type);
    ConsoleEvent* oldest = end;
    while (newest != end) {
        ConsoleEvent* const older = newest->next;
        newest->next = oldest;
        oldest = newest;
        newest = older;
    }
    return oldest;
}
