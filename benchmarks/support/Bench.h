#pragma once

#include <functional>
#include <vector>

class QWidget;

/** What the benchmark programs share: timing, and the one line that each measure prints. */
namespace Bench {

/** The median wall-clock time of several runs, in seconds; `prepare` runs before each, untimed. */
double median(int runs, const std::function<void()>& run,
              const std::function<void()>& prepare = nullptr);

/** A piece of work; `prepare`, if there is one, runs before each run of it, untimed. */
struct Work
{
    std::function<void()> run;
    std::function<void()> prepare;
};

/**
 * The median processor time of each piece of work, in seconds. They take turns, and the time of
 * this process alone counts, so that what else the machine does meets all alike.
 */
std::vector<double> medians(int runs, const std::vector<Work>& works);

/** Runs the event loop until the widget has been painted once more; false after ten seconds. */
bool waitForPaint(QWidget& widget);

/** Prints "name<TAB>ratio<TAB>>= aim<TAB>ok|short"; more is better. */
void printAtLeast(const char* name, double ratio, double aim);
/** The same for a ratio of which less is better: "<= aim". */
void printAtMost(const char* name, double ratio, double aim);

} // namespace Bench
