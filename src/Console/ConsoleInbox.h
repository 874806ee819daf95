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

    void take(ConsoleEvent* event);
    bool deliverSome();
    bool deliverNext();
    bool endChain();
    void forgetHandled();

    TvkConsole& m_console;
    Door& m_door;
    std::atomic<int> m_posted{0}; ///< events of their own that are not handled yet
    // The chain leads from the oldest to the newest, so that it need not be turned round.
    ConsoleEvent m_start{{}, 0};                  ///< no message: before the first of a chain
    ConsoleEvent* m_handled = &m_start;           ///< the last one handled, owned if not m_start
    std::atomic<ConsoleEvent*> m_newest{nullptr}; ///< null while each message is an own event
    QBasicTimer m_nextTurn;
};
