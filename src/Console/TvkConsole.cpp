#include "Console/TvkConsole.h"

#include "Console/ConsoleInbox.h"
#include "Console/ConsoleTextFile.h"

#include <TvkShell.h>
#include <TvkText.h>

#include <Inventor/errors/SoDebugError.h>

#include <QDockWidget>
#include <QFileDialog>
#include <QFrame>
#include <QMessageBox>
#include <QThread>

#include <iostream>

TvkConsole::TvkConsole() : m_inbox(std::make_unique<ConsoleInbox>(*this))
{
    setObjectName(QStringLiteral("TvkConsole"));
    m_name = "Console";
    m_description = "A console which prints the standard output and error.";
    m_vendor = "Quelvar";
    m_version = "1.0.0";
}

TvkConsole::~TvkConsole()
{
    // Whoever unloads the library while the console is active: first nobody may call it any more.
    m_errRedirector.reset();
    m_outRedirector.reset();
    m_handlers.putBack();
    m_inbox->close();
}

void TvkConsole::createWidgets()
{
    m_dock = new QDockWidget;
    m_dock->setObjectName(objectName());
    m_dock->hide();
    m_frame = new QFrame(m_dock);
    setupUi(m_frame);
    m_consoleFindBar->setView(m_consoleOutput);
    m_showErrors = true;
    m_showInfos = true;
    m_showWarnings = true;
    connectButtons();
    m_handlers.replace(&TvkConsole::s_errorReported, this);
}

void TvkConsole::connectButtons()
{
    connect(m_errorsButton, SIGNAL(toggled(bool)), this, SLOT(outputErrors()));
    connect(m_warningsButton, SIGNAL(toggled(bool)), this, SLOT(outputWarnings()));
    connect(m_infosButton, SIGNAL(toggled(bool)), this, SLOT(outputInfos()));
    connect(m_clearButton, SIGNAL(clicked()), this, SLOT(clear()));
    connect(m_saveButton, SIGNAL(clicked()), this, SLOT(save()));
}

void TvkConsole::activate()
{
    // A second redirector would keep the first one as the stream's former buffer.
    if (isActive() || !m_dock)
        return;
    // Kept on purpose: the console registers before the base is activated, unlike the other docks.
    TvkShell::getInstance()->registerExtension(this, true);
    TvkExtension::activate();
    m_dock->setWidget(m_frame);
    m_dock->setWindowTitle(tr("Console"));
    m_errRedirector = StdStreamRedirector::redirect(std::cerr, &TvkConsole::s_errorWritten, this);
    m_outRedirector = StdStreamRedirector::redirect(std::cout, &TvkConsole::s_outputWritten, this);
    TvkShell::getInstance()->addDockWidget(m_dock, Qt::BottomDockWidgetArea);
    show();
}

void TvkConsole::deactivate()
{
    const bool wasActive = isActive();
    TvkExtension::deactivate();
    if (!wasActive)
        return;
    if (m_dock)
        m_dock->setWidget(nullptr);
    m_errRedirector.reset();
    m_outRedirector.reset();
    if (m_dock)
        TvkShell::getInstance()->removeDockWidget(m_dock);
    hide();
    TvkShell::getInstance()->unregisterExtension(this);
}

void TvkConsole::show()
{
    TvkExtension::show();
    if (m_dock)
        m_dock->show();
}

void TvkConsole::hide()
{
    TvkExtension::hide();
    if (m_dock)
        m_dock->hide();
}

void TvkConsole::releaseWidgets()
{
    // What is written while there is nothing to show it in belongs where it went before.
    m_errRedirector.reset();
    m_outRedirector.reset();
    delete m_frame.data();
    delete m_dock.data();
    m_handlers.putBack();
}

bool TvkConsole::event(QEvent* event)
{
    if (event->type() == ConsoleEvent::Type) {
        if (auto* const message = dynamic_cast<ConsoleEvent*>(event)) {
            m_inbox->received(*message);
            display(message->text, message->kind);
        }
    }
    return TvkExtension::event(event);
}

// Kept on purpose: a toggle inverts what is shown, whatever its button's new state says.

void TvkConsole::outputErrors()
{
    m_showErrors = !m_showErrors;
}

void TvkConsole::outputInfos()
{
    m_showInfos = !m_showInfos;
}

void TvkConsole::outputWarnings()
{
    m_showWarnings = !m_showWarnings;
}

void TvkConsole::clear()
{
    m_consoleOutput->clearText();
}

void TvkConsole::save()
{
    const QString path = QFileDialog::getSaveFileName(
        m_frame, tr("Save the content of the console"), {}, tr("Console outputs (*.txt)"));
    if (path.isEmpty() || !m_frame)
        return;
    const ConsoleTextFile file(m_consoleOutput->toPlainText());
    if (!file.write(path))
        QMessageBox::warning(m_frame, tr("Console"), file.errorString());
    else if (file.replacedCharacters() > 0)
        QMessageBox::information(
            m_frame, tr("Console"),
            tr("%n character(s) that Latin-1 does not have were saved as \"?\".", nullptr,
               file.replacedCharacters()));
}

void TvkConsole::s_errorWritten(const char* text, std::int64_t, void* console)
{
    static_cast<TvkConsole*>(console)->write(text, Error);
}

void TvkConsole::s_outputWritten(const char* text, std::int64_t, void* console)
{
    static_cast<TvkConsole*>(console)->write(text, Information);
}

void TvkConsole::write(const char* text, Kind kind)
{
    const QString message = TvkText::fromBytes(text);
    if (QThread::currentThread() == thread())
        display(message, kind);
    else
        ConsoleInbox::send(this, message, kind);
}

/** On any thread, and as long as anybody still calls the handler: the console may be gone. */
void TvkConsole::s_errorReported(const SoError* error, void* console)
{
    std::int32_t kind = Error;
    if (error->isOfType(SoDebugError::getClassTypeId())) {
        const auto severity = static_cast<const SoDebugError*>(error)->getSeverity();
        if (severity == SoDebugError::WARNING)
            kind = Warning;
        else if (severity == SoDebugError::INFO)
            kind = Information;
    }
    ConsoleInbox::send(console, TvkText::fromBytes(error->getDebugString().getString()), kind);
}

void TvkConsole::display(const QString& text, std::int32_t kind)
{
    if (!m_frame)
        ConsoleInbox::writeToStandardError(text);
    else if (kind == Information && m_showInfos)
        m_consoleOutput->addParagraph(text, m_infoColor);
    else if (kind == Warning && m_showWarnings)
        m_consoleOutput->addParagraph(text, m_warningColor);
    else if (kind != Information && kind != Warning && m_showErrors)
        m_consoleOutput->addParagraph(text, m_errorColor);
}
