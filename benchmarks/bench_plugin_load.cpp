// Loading the plug-in and creating all its widgets, against the start of a bare application: from
// QApplication to the first picture of a QMainWindow in a real window. Both happen once in the life
// of a process, so each run is a process of its own.

#include "benchmarks/support/Bench.h"
#include "lib/HostPluginLoader.h"
#include "scenegraph/SoTavrik.h"

#include <TvkExtension.h>
#include <TvkPlugin.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMainWindow>
#include <QProcess>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

const int s_runs = 15;
const char* const s_plugin = "--plugin";
const char* const s_application = "--application";

double seconds(const QElapsedTimer& timer)
{
    return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
}

/** Says how long the run took; false if it failed. */
int report(bool succeeded, double time)
{
    std::printf("%.9f\n", time);
    return succeeded ? EXIT_SUCCESS : EXIT_FAILURE;
}

int startApplication(int& argc, char** argv)
{
    QElapsedTimer timer;
    timer.start();
    QApplication application(argc, argv);
    QMainWindow window;
    window.show();
    const bool painted = Bench::waitForPaint(window);
    return report(painted, seconds(timer));
}

int loadPlugin(int& argc, char** argv)
{
    QApplication application(argc, argv);
    SoTavrik::init();
    const QString path = HostPluginLoader::pluginDirectory() + QLatin1String("/TvkDefaults.so");
    HostPluginLoader loader;
    // A host has long shown its window, with text in it, when it loads plug-ins: what a process
    // pays once for its first window and its first font is no part of loading a plug-in. The bare
    // application, whose window is empty, pays for the window and for no font.
    QMainWindow window;
    window.setCentralWidget(new QLabel(QStringLiteral("scene")));
    window.show();
    if (!Bench::waitForPaint(window))
        return EXIT_FAILURE;

    QElapsedTimer timer;
    timer.start();
    TvkPlugin* const plugin = loader.load(path);
    if (!plugin) {
        std::fprintf(stderr, "%s\n", loader.errorString().toLocal8Bit().constData());
        return EXIT_FAILURE;
    }
    plugin->load();
    const std::vector<TvkExtension*> extensions = plugin->getExtensions();
    for (TvkExtension* extension : extensions)
        extension->createWidgets();
    const double time = seconds(timer);

    for (TvkExtension* extension : extensions)
        extension->releaseWidgets();
    plugin->unload();
    return report(!extensions.empty(), time);
}

/** The seconds that one process of its own reports. */
double timeOfProcess(const char* mode)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {QLatin1String(mode)});
    bool isNumber = false;
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != EXIT_SUCCESS)
        std::exit(EXIT_FAILURE);
    const double time = process.readAllStandardOutput().trimmed().toDouble(&isNumber);
    return isNumber ? time : 0;
}

double median(std::vector<double>& times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

/** Takes turns, so that what else the machine does meets both alike. */
int compare(int& argc, char** argv)
{
    QCoreApplication application(argc, argv);
    std::vector<double> plugin;
    std::vector<double> bare;
    for (int i = 0; i < s_runs; ++i) {
        plugin.push_back(timeOfProcess(s_plugin));
        bare.push_back(timeOfProcess(s_application));
    }
    const double time = median(plugin);
    const QString name =
        QStringLiteral("plug-in loaded, its widgets created (%1 ms)").arg(time * 1e3, 0, 'f', 1);
    Bench::printAtMost(name.toUtf8().constData(), time / median(bare), 0.35);
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    const QByteArray mode = argc > 1 ? argv[1] : "";
    if (mode == s_plugin)
        return loadPlugin(argc, argv);
    if (mode == s_application)
        return startApplication(argc, argv);
    return compare(argc, argv);
}
