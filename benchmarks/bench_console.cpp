// The console: many coloured lines against a QTextEdit that is given them one by one, an error
// storm from eight threads against an event for each report, and single characters against a file.

#include "benchmarks/support/Bench.h"
#include "benchmarks/support/ReportStorm.h"
#include "lib/HostShell.h"
#include "scenegraph/SoTavrik.h"

#include "Console/ConsoleView.h"
#include "Console/TvkConsole.h"

#include <Inventor/errors/SoDebugError.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QTemporaryFile>
#include <QTextBlock>
#include <QTextEdit>
#include <QTimerEvent>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>

#include <malloc.h>

namespace {

const QSize s_size(600, 300);
const int s_fewLines = 100000;
const int s_manyLines = 1000000;
const int s_burst = 10000;

[[noreturn]] void fail(const QByteArray& what)
{
    std::fprintf(stderr, "%s\n", what.constData());
    std::exit(EXIT_FAILURE);
}

double megabytesInUse()
{
    const auto memory = mallinfo2();
    return double(memory.uordblks + memory.hblkhd) * 1e-6;
}

void settle()
{
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents();
}

/** Lines of ordinary length, made once for all bursts: making them is no part of showing them. */
const QString& lineText(int number)
{
    static const std::vector<QString> texts = [] {
        std::vector<QString> made;
        made.reserve(s_burst);
        for (int i = 0; i < s_burst; ++i)
            made.push_back(
                QStringLiteral("Coin warning in SoShape::render(): message number %1").arg(i));
        return made;
    }();
    return texts[std::size_t(number % s_burst)];
}

const QColor& lineColor(int number)
{
    static const std::array<QColor, 3> colors{Qt::darkRed, Qt::darkGreen, Qt::darkYellow};
    return colors[std::size_t(number) % colors.size()];
}

/** What the lines are given to: the console's view. */
struct OurView : ConsoleView
{
    void add(const QString& text, const QColor& color) { addParagraph(text, color); }
};

/** The same by the usual means. */
struct UsualView : QTextEdit
{
    UsualView() { setReadOnly(true); }
    void add(const QString& text, const QColor& color)
    {
        setTextColor(color);
        append(text);
    }
};

/** A view in a window, which is given lines in bursts. */
template <class View>
class Printing
{
public:
    explicit Printing(int lines) : m_lines(lines) {}

    /** For Bench::medians(). */
    Bench::Work work()
    {
        return {[this] { print(); }, [this] { open(); }};
    }

    /** The growth of the process's memory in the last run, as long as its view is there. */
    double megabytes()
    {
        settle();
        return megabytesInUse() - m_megabytesBefore;
    }

private:
    void open();
    void print();

    const int m_lines;
    double m_megabytesBefore = 0;
    std::unique_ptr<View> m_view;
};

template <class View>
void Printing<View>::open()
{
    m_view.reset();
    m_view = std::make_unique<View>();
    m_view->resize(s_size);
    m_view->show();
    Bench::waitForPaint(*m_view->viewport());
    settle();
    m_megabytesBefore = megabytesInUse();
}

template <class View>
void Printing<View>::print()
{
    for (int line = 0; line < m_lines; ++line) {
        m_view->add(lineText(line), lineColor(line));
        if ((line + 1) % s_burst == 0)
            QCoreApplication::processEvents();
    }
    const QTextDocument& document = *m_view->document();
    if (document.blockCount() != m_lines || document.firstBlock().text() != lineText(0) ||
        document.lastBlock().text() != lineText(m_lines - 1))
        fail("a view has not kept every line");
}

void compareLines()
{
    Printing<OurView> ours(s_fewLines);
    Printing<UsualView> usual(s_fewLines);
    const std::vector<double> times = Bench::medians(3, {ours.work(), usual.work()});
    const QString name = QStringLiteral("console, 100,000 coloured lines (%1 us each)")
                             .arg(times[0] / s_fewLines * 1e6, 0, 'f', 2);
    Bench::printAtLeast(name.toUtf8().constData(), times[1] / times[0], 25);
    const double bytes = ours.megabytes() / s_fewLines * 1e6;
    const QString memory =
        QStringLiteral("console, memory of a line (%1 bytes)").arg(bytes, 0, 'f', 0);
    Bench::printAtMost(memory.toUtf8().constData(), ours.megabytes() / usual.megabytes(), 0.5);
}

void compareWithMany()
{
    Printing<OurView> few(s_fewLines);
    Printing<OurView> many(s_manyLines);
    const std::vector<double> times = Bench::medians(5, {few.work(), many.work()});
    Bench::printAtMost("console, a line among 1,000,000 / among 100,000",
                       times[1] / s_manyLines / (times[0] / s_fewLines), 1.5);
}

/** The longest time in which the event loop had no turn. */
class StallWatch : public QObject
{
public:
    StallWatch()
    {
        startTimer(0);
        m_clock.start();
    }

    double longest() const { return std::max(m_longest, seconds()); }

protected:
    void timerEvent(QTimerEvent*) override
    {
        m_longest = longest();
        m_clock.start();
    }

private:
    double seconds() const { return double(m_clock.nsecsElapsed()) * 1e-9; }

    QElapsedTimer m_clock;
    double m_longest = 0;
};

/** An active console in a window. */
class ConsoleWindow
{
public:
    ConsoleWindow() : m_shell(m_window)
    {
        console.createWidgets();
        console.activate();
        m_window.resize(s_size);
        m_window.show();
        Bench::waitForPaint(*view().viewport());
        settle();
    }
    ~ConsoleWindow()
    {
        console.deactivate();
        console.releaseWidgets();
    }
    ConsoleWindow(const ConsoleWindow&) = delete;
    ConsoleWindow& operator=(const ConsoleWindow&) = delete;

    ConsoleView& view() { return *console.m_consoleOutput; }

private:
    QMainWindow m_window;
    HostShell m_shell;

public:
    TvkConsole console;
};

/** Shows each report by an event of its own, as it would be done without further thought. */
class EventForEach : public QObject
{
public:
    explicit EventForEach(ConsoleView& view) : m_view(view)
    {
        m_callback = SoDebugError::getHandlerCallback();
        m_data = SoDebugError::getHandlerData();
        SoDebugError::setHandlerCallback(&EventForEach::post, this);
    }
    ~EventForEach() override { SoDebugError::setHandlerCallback(m_callback, m_data); }

protected:
    void customEvent(QEvent* event) override
    {
        const auto& message = static_cast<const TvkConsole::ConsoleEvent&>(*event);
        m_view.addParagraph(message.text, Qt::darkYellow);
    }

private:
    static void post(const SoError* error, void* self)
    {
        const QString text = QString::fromUtf8(error->getDebugString().getString());
        QCoreApplication::postEvent(static_cast<EventForEach*>(self),
                                    new TvkConsole::ConsoleEvent(text, TvkConsole::Warning));
    }

    ConsoleView& m_view;
    SoErrorCB* m_callback;
    void* m_data;
};

void checkReports(const ConsoleView& view)
{
    ReportCheck check;
    for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next())
        check.see(block.text().toLatin1());
    if (!check.fault().isEmpty())
        fail(check.fault());
}

/** The longest stall from the first report to the picture of the last. */
double stallOfStorm(ConsoleView& view)
{
    const StallWatch watch;
    const ReportStorm storm;
    while (view.blockCount() < ReportStorm::reports)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    settle();
    const double longest = watch.longest();
    checkReports(view);
    return longest;
}

double stallOfConsole()
{
    ConsoleWindow window;
    return stallOfStorm(window.view());
}

double stallOfEvents()
{
    ConsoleWindow window;
    const EventForEach events(window.view());
    return stallOfStorm(window.view());
}

void compareStalls()
{
    std::array<double, 3> ours{};
    std::array<double, 3> usual{};
    for (std::size_t run = 0; run < ours.size(); ++run) {
        ours[run] = stallOfConsole();
        usual[run] = stallOfEvents();
    }
    std::sort(ours.begin(), ours.end());
    std::sort(usual.begin(), usual.end());
    Bench::printAtMost("console, stall by 1,000,000 reports / an event for each",
                       ours[1] / usual[1], 0.01);
    Bench::printAtMost("console, stall by 1,000,000 reports, ms", ours[1] * 1e3, 50);
}

void putCharacters(std::ostream& stream)
{
    for (int i = 0; i < 100000; ++i)
        stream.put('x');
}

void compareCharacters()
{
    ConsoleWindow window;
    QTemporaryFile place;
    if (!place.open())
        fail("no temporary file");
    std::ofstream file;
    const auto reopen = [&] {
        file.close();
        file.open(place.fileName().toLocal8Bit().constData());
    };
    const Bench::Work ours = {[&] { putCharacters(std::cout); },
                              [&] {
                                  // The end of a line shows it, which is measured elsewhere.
                                  std::cout.put('\n');
                                  window.console.clear();
                                  settle();
                              }};
    const Bench::Work usual = {[&] { putCharacters(file); }, reopen};
    const std::vector<double> times = Bench::medians(101, {ours, usual});
    if (!file)
        fail("the file has not taken everything");
    Bench::printAtMost("console, a character to std::cout / to a file", times[0] / times[1], 2);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    SoTavrik::init();
    compareLines();
    compareWithMany();
    compareStalls();
    compareCharacters();
    return EXIT_SUCCESS;
}
