#pragma once

#include <TvkExtension.h>

#include "Console/ConsoleErrorHandlers.h"
#include "Console/StdStreamRedirector.h"

#include <QColor>
#include <QEvent>
#include <QPointer>

#include <atomic>
#include <cstdint>
#include <memory>

#include "ui_TvkConsole.h"

class ConsoleInbox;
class QDockWidget;

/**
 * The dock that shows what the process writes to its standard output and error streams, and every
 * error that the scene graph library reports: errors, informations and warnings in a colour each.
 *
 * The streams are listened to while the extension is active, the library's errors from
 * createWidgets() to releaseWidgets(). What another thread writes or reports is shown later, on the
 * console's own thread, and in its order.
 */
class TvkConsole final : public TvkExtension, public Ui::m_consoleFrame
{
    Q_OBJECT

public:
    enum Kind : std::int32_t { Error = 0, Information = 1, Warning = 2 };

    /** A message on its way to the console. */
    class ConsoleEvent : public QEvent
    {
    public:
        static constexpr QEvent::Type Type = QEvent::User;

        ConsoleEvent(QString message, std::int32_t messageKind)
            : QEvent(Type), text(std::move(message)), kind(messageKind)
        {}

        const QString text;
        const std::int32_t kind; ///< of Kind; any other is an error

        // For the inbox, while the event is on its way.
        std::atomic<ConsoleEvent*> next{nullptr};
        bool isPosted = false;
    };

    TvkConsole();
    ~TvkConsole() override;

    void activate() override;
    void deactivate() override;
    void hide() override;
    void createWidgets() override;
    void show() override;
    void releaseWidgets() override;

    bool event(QEvent* event) override;

public slots:
    void outputErrors();
    void outputInfos();
    void outputWarnings();
    /** Empties the view. */
    void clear();
    /** Asks for a file and writes what the view shows into it, in Latin-1. */
    void save();

private:
    static void s_errorWritten(const char* text, std::int64_t count, void* console);
    static void s_outputWritten(const char* text, std::int64_t count, void* console);
    static void s_errorReported(const SoError* error, void* console);

    void connectButtons();
    void write(const char* text, Kind kind);
    void display(const QString& text, std::int32_t kind);

    QPointer<QDockWidget> m_dock; ///< null until createWidgets() and after releaseWidgets()
    QPointer<QFrame> m_frame;     ///< the form's top widget, a child of the dock
    bool m_showErrors = false;
    bool m_showInfos = false;
    bool m_showWarnings = false;
    const QColor m_errorColor{Qt::darkRed};
    const QColor m_infoColor{Qt::darkGreen};
    const QColor m_warningColor{Qt::darkYellow};
    std::unique_ptr<ConsoleInbox> m_inbox;
    ConsoleErrorHandlers m_handlers;
    StdStreamRedirector::Owner m_errRedirector; ///< null until activation
    StdStreamRedirector::Owner m_outRedirector;
};
