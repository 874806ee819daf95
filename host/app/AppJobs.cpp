#include "app/AppJobs.h"

#include "app/AppErrorEcho.h"
#include "app/AppGallery.h"
#include "app/AppScreenshot.h"
#include "app/AppTour.h"
#include "app/AppWindow.h"

#include <TvkExtension.h>
#include <TvkPlugin.h>

#include <cstdio>

namespace {

int complain(const QString& text)
{
    std::fprintf(stderr, "tavrik: %s\n", qUtf8Printable(text));
    return AppJobs::Failed;
}

int report(bool passed, const QString& text)
{
    if (!passed)
        return complain(text);
    std::printf("tavrik: %s\n", qUtf8Printable(text));
    return AppJobs::Done;
}

bool complainAll(const QStringList& errors)
{
    for (const QString& error : errors)
        complain(error);
    return !errors.isEmpty();
}

/** A text must not look like two: nothing in it separates columns or lines. */
QString column(const SbString& text)
{
    return QString::fromUtf8(text.getString()).simplified();
}

void printExtension(const TvkExtension& extension)
{
    const QStringList columns{QLatin1String(extension.metaObject()->className()),
                              column(extension.getName()), column(extension.getDescription()),
                              column(extension.getVendor()), column(extension.getVersion())};
    std::printf("%s\n", qUtf8Printable(columns.join(QLatin1Char('\t'))));
}

bool listExtensionsOf(const QString& file)
{
    HostPluginLoader loader;
    TvkPlugin* const plugin = loader.load(file);
    if (!plugin) {
        complain(loader.errorString());
        return false;
    }
    plugin->load();
    for (const TvkExtension* extension : plugin->getExtensions())
        printExtension(*extension);
    plugin->unload();
    return true;
}

bool loadPlugins(HostMainWindow& window, const AppArguments& arguments)
{
    HostPluginFolder& plugins = window.plugins();
    return !complainAll(arguments.plugins.isEmpty()
                            ? plugins.load(HostPluginLoader::pluginDirectory())
                            : plugins.load(arguments.plugins));
}

bool openScene(HostMainWindow& window, const AppArguments& arguments)
{
    QString error;
    if (!arguments.scene.isEmpty() && !window.scene().open(arguments.scene, &error)) {
        complain(error);
        return false;
    }
    complainAll(window.scene().readErrors().split(QLatin1Char('\n'), Qt::SkipEmptyParts));
    if (!arguments.selection.isEmpty() && !window.select(arguments.selection, &error)) {
        complain(error);
        return false;
    }
    return true;
}

int runTour(AppWindow& window, const QString& folder)
{
    AppTour tour(window, folder);
    const bool passed = tour.run();
    return report(passed, tour.message());
}

int runGallery(const AppArguments& arguments, const QString& folder)
{
    // Without a view, which needs a display that can draw in three dimensions.
    HostMainWindow window;
    if (!loadPlugins(window, arguments))
        return AppJobs::Failed;
    window.show();
    AppGallery gallery(window, folder);
    const bool passed = gallery.run();
    return report(passed, gallery.message());
}

int takeScreenshot(AppWindow& window, const QString& file)
{
    AppScreenshot screenshot(file);
    const bool passed = screenshot.take(window);
    return report(passed, screenshot.message());
}

int runInWindow(const AppArguments& arguments)
{
    AppWindow window;
    AppErrorEcho echo;
    if (!loadPlugins(window, arguments))
        return AppJobs::Failed;
    echo.start();
    window.restoreLayout();
    window.show();
    if (!openScene(window, arguments))
        return AppJobs::Failed;
    return arguments.tourFolder.isEmpty() ? takeScreenshot(window, arguments.screenshotFile)
                                          : runTour(window, arguments.tourFolder);
}

} // namespace

int AppJobs::listExtensions(const AppArguments& arguments)
{
    const QString folder = HostPluginLoader::pluginDirectory();
    const QStringList files =
        arguments.plugins.isEmpty() ? HostPluginFolder::files(folder) : arguments.plugins;
    if (files.isEmpty())
        return complain(QStringLiteral("There is no plug-in in \"%1\".").arg(folder));
    int result = Done;
    for (const QString& file : files)
        if (!listExtensionsOf(file))
            result = Failed;
    return result;
}

bool AppJobs::isAskedFor(const AppArguments& arguments)
{
    return !arguments.screenshotFile.isEmpty() || !arguments.tourFolder.isEmpty() ||
           !arguments.galleryFolder.isEmpty();
}

int AppJobs::run(const AppArguments& arguments)
{
    if (!arguments.galleryFolder.isEmpty())
        return runGallery(arguments, arguments.galleryFolder);
    AppScreenshot screenshot(arguments.screenshotFile);
    if (arguments.tourFolder.isEmpty() && !screenshot.isPossible())
        return complain(screenshot.message());
    const int result = runInWindow(arguments);
    // The tour ends with every editor there is, in a window without a scene.
    if (result != Done || arguments.tourFolder.isEmpty())
        return result;
    return runGallery(arguments, arguments.tourFolder + QStringLiteral("/editors"));
}
