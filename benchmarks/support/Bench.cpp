#include "benchmarks/support/Bench.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

/** Sees the paint events of one widget. */
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget& widget) : m_widget(widget) { widget.installEventFilter(this); }
    ~PaintWatch() override { m_widget.removeEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }
    bool hasPainted() const { return m_painted; }

private:
    QWidget& m_widget;
    bool m_painted = false;
};

double middle(std::vector<double>& times)
{
    const auto found = times.begin() + long(times.size() / 2);
    std::nth_element(times.begin(), found, times.end());
    return *found;
}

double processorTime()
{
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

double processorTime(const Bench::Work& work)
{
    if (work.prepare)
        work.prepare();
    const double start = processorTime();
    work.run();
    return processorTime() - start;
}

void print(const char* name, double ratio, const char* relation, double aim, bool isReached)
{
    std::printf("%s\t%.3g\t%s %g\t%s\n", name, ratio, relation, aim, isReached ? "ok" : "short");
    std::fflush(stdout);
}

} // namespace

double Bench::median(int runs, const std::function<void()>& run,
                     const std::function<void()>& prepare)
{
    std::vector<double> seconds;
    for (int i = 0; i < runs; ++i) {
        if (prepare)
            prepare();
        QElapsedTimer timer;
        timer.start();
        run();
        seconds.push_back(double(timer.nsecsElapsed()) * 1e-9);
    }
    return middle(seconds);
}

std::vector<double> Bench::medians(int runs, const std::vector<Work>& works)
{
    std::vector<std::vector<double>> times(works.size());
    for (int i = 0; i < runs; ++i) {
        for (std::size_t work = 0; work < works.size(); ++work)
            times[work].push_back(processorTime(works[work]));
    }
    std::vector<double> found;
    found.reserve(times.size());
    for (std::vector<double>& each : times)
        found.push_back(middle(each));
    return found;
}

bool Bench::waitForPaint(QWidget& widget)
{
    const PaintWatch watch(widget);
    QElapsedTimer timer;
    timer.start();
    while (!watch.hasPainted() && timer.elapsed() < 10000)
        QCoreApplication::processEvents();
    return watch.hasPainted();
}

void Bench::printAtLeast(const char* name, double ratio, double aim)
{
    print(name, ratio, ">=", aim, ratio >= aim);
}

void Bench::printAtMost(const char* name, double ratio, double aim)
{
    print(name, ratio, "<=", aim, ratio <= aim);
}
