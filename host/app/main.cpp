#include "app/AppArguments.h"
#include "app/AppGallery.h"
#include "app/AppTour.h"
#include "app/AppWindow.h"

#include "scenegraph/SoTavrik.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>

namespace {

enum ExitCode { Done = 0, Failed = 1, Refused = 2 };

int print(const AppArguments& arguments)
{
    const bool refused = arguments.action == AppArguments::Refuse;
    FILE* stream = refused ? stderr : stdout;
    std::fprintf(stream, refused ? "tavrik: %s\nTry \"tavrik --help\".\n" : "%s\n",
                 qUtf8Printable(arguments.message));
    return refused ? Refused : Done;
}

/** Help needs no display, so it must not wait for QApplication. */
bool asksForHelp(int argc, char** argv)
{
    return std::any_of(argv + 1, argv + argc, [](const char* argument) {
        const QByteArray text(argument);
        return text == "--help" || text == "-h" || text == "--version" || text == "-v";
    });
}

int runTour(AppWindow& window, const QString& folder)
{
    AppTour tour(window, folder);
    const bool passed = tour.run();
    std::fprintf(passed ? stdout : stderr, "tavrik: %s\n", qUtf8Printable(tour.message()));
    return passed ? Done : Failed;
}

int runGallery(const QString& folder)
{
    // Without a view, which needs a display that can draw in three dimensions.
    HostMainWindow window;
    window.loadPlugins(HostPluginLoader::pluginDirectory());
    window.show();
    AppGallery gallery(window, folder);
    const bool passed = gallery.run();
    std::fprintf(passed ? stdout : stderr, "tavrik: %s\n", qUtf8Printable(gallery.message()));
    return passed ? Done : Failed;
}

int showWindow(const AppArguments& arguments)
{
    AppWindow window;
    window.loadPlugins(HostPluginLoader::pluginDirectory());
    window.restoreLayout();
    window.show();
    const bool opened = arguments.scene.isEmpty() || window.openFile(arguments.scene);
    if (arguments.tourFolder.isEmpty())
        return QApplication::exec();
    return opened ? runTour(window, arguments.tourFolder) : Failed;
}

int show(const AppArguments& arguments)
{
    SoTavrik::init();
    if (!arguments.galleryFolder.isEmpty())
        return runGallery(arguments.galleryFolder);
    const int result = showWindow(arguments);
    // The tour ends with every editor there is, in a window without a scene.
    if (result != Done || arguments.tourFolder.isEmpty())
        return result;
    return runGallery(arguments.tourFolder + QStringLiteral("/editors"));
}

} // namespace

int main(int argc, char** argv)
{
    if (asksForHelp(argc, argv)) {
        QCoreApplication application(argc, argv);
        return print(AppArguments::parse(QCoreApplication::arguments()));
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tavrik"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tavrik"));
    const AppArguments arguments = AppArguments::parse(QApplication::arguments());
    return arguments.action == AppArguments::Show ? show(arguments) : print(arguments);
}
