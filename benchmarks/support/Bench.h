#pragma once

#include <functional>

class QWidget;

/** What the benchmark programs share: timing, and the one line that each measure prints. */
namespace Bench {

/** The median wall-clock time of several runs, in seconds; `prepare` runs before each, untimed. */
double median(int runs, const std::function<void()>& run,
              const std::function<void()>& prepare = nullptr);

/** Runs the event loop until the widget has been painted once more; false after ten seconds. */
bool waitForPaint(QWidget& widget);

/** Prints "name<TAB>ratio<TAB>>= aim<TAB>ok|short"; more is better. */
void printAtLeast(const char* name, double ratio, double aim);
/** The same for a ratio of which less is better: "<= aim". */
void printAtMost(const char* name, double ratio, double aim);

} // namespace Bench
