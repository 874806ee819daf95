#pragma once

#include "Console/TvkConsole.h"

#include <QBasicTimer>

#include <atomic>

/**
 * Brings messages from any thread to a console: an ordinary message as one posted event. While more
 * come than are handled, the rest wait in a chain behind a single event and are handled a few
 * milliseconds at a time, so that the window stays responsive. Nothing is lost, and what a thread
 * says keeps its order. No locks: a thread that reports an error never waits for another.
 */
class ConsoleInbox final : public QObject
{
    Q_OBJECT

public:
    /** Belongs to the console, on whose thread it is made and destroyed. */
    explicit ConsoleInbox(TvkConsole& console);
    ~ConsoleInbox() override;

    /** Delivers what is on its way, and lets nothing in any more; to be called before the console
     *  is destroyed. */
    void close();

    /** From any thread, also when the console is no more: then the text goes where it would have
     *  gone without a console, to the standard error stream. */
    static void send(const void* console, const QString& text, int kind);

    /** To be told of every event that reaches the console, before its text is read. */
    void received(const TvkConsole::ConsoleEvent& event);

    static void writeToStandardError(const QString& text);

protected:
    void customEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    struct Door;
    using ConsoleEvent = TvkConsole::ConsoleEvent;

    static Door& freeDoor();
    static ConsoleEvent* endOfChain();

    void take(ConsoleEvent* event);
    bool deliverSome();
    ConsoleEvent* nextInOrder();
    ConsoleEvent* takeChain();

    TvkConsole& m_console;
    Door& m_door;
    std::atomic<int> m_posted{0}; ///< events of their own that are not handled yet
    /// The newest first; null while every message has an event of its own.
    std::atomic<ConsoleEvent*> m_chain{nullptr};
    ConsoleEvent* m_rest; ///< taken from the chain and not handled yet, the oldest first
    QBasicTimer m_nextTurn;
};
