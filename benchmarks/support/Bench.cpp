#include "benchmarks/support/Bench.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <vector>

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
    const auto middle = seconds.begin() + long(seconds.size() / 2);
    std::nth_element(seconds.begin(), middle, seconds.end());
    return *middle;
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
