#include "app/AppArguments.h"
#include "app/AppJobs.h"
#include "app/AppWindow.h"

#include "scenegraph/SoTavrik.h"

#include <QApplication>
#include <QMessageBox>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

/**
 * The program's arguments as Qt is given them. Qt has an option --plugin of its own, and would take
 * ours for it together with the file behind it, so the two become one.
 */
class Arguments
{
public:
    Arguments(int argc, char** argv)
    {
        for (int i = 0; i < argc; ++i) {
            m_texts.emplace_back(argv[i]);
            if (m_texts.back() == "--plugin" && i + 1 < argc)
                m_texts.back().append('=').append(argv[++i]);
        }
        for (QByteArray& text : m_texts)
            m_pointers.push_back(text.data());
        m_pointers.push_back(nullptr);
        m_count = int(m_texts.size());
    }

    int& count() { return m_count; }
    char** values() { return m_pointers.data(); }

private:
    std::vector<QByteArray> m_texts;
    std::vector<char*> m_pointers;
    int m_count = 0;
};

int print(const AppArguments& arguments)
{
    const bool refused = arguments.action == AppArguments::Refuse;
    FILE* stream = refused ? stderr : stdout;
    std::fprintf(stream, refused ? "tavrik: %s\nTry \"tavrik --help\".\n" : "%s\n",
                 qUtf8Printable(arguments.message));
    return refused ? AppJobs::Refused : AppJobs::Done;
}

/** What the arguments ask for as far as can be told while Qt's own ones are among them. */
AppArguments withoutDisplay(int argc, char** argv)
{
    Arguments given(argc, argv);
    const QCoreApplication application(given.count(), given.values());
    return AppArguments::parse(QCoreApplication::arguments());
}

/** Without one Qt ends the program by a crash, unless it is told to draw elsewhere. */
bool lacksDisplay(int argc, char** argv)
{
    const bool isToldWhere = std::any_of(argv + 1, argv + argc, [](const char* argument) {
        return QByteArray(argument).contains("-platform");
    });
    return !isToldWhere && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") &&
           qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

/** The platforms without a screen, which editors and lists can do with. */
bool lacksPictures(const AppArguments& arguments)
{
    const QString platform = QGuiApplication::platformName();
    return arguments.galleryFolder.isEmpty() && (platform == QLatin1String("offscreen") ||
                                                 platform.startsWith(QLatin1String("minimal")));
}

int refuse(const char* reason)
{
    std::fprintf(stderr, "tavrik: %s\n", reason);
    return AppJobs::Failed;
}

bool needsNoApplication(const AppArguments& arguments)
{
    return arguments.action == AppArguments::PrintHelp ||
           arguments.action == AppArguments::PrintVersion;
}

void tellWhatIsNotThere(AppWindow& window, const QString& error)
{
    auto* box = new QMessageBox(QMessageBox::Warning, QStringLiteral("Tavrik"), error,
                                QMessageBox::Ok, &window);
    box->setObjectName(QStringLiteral("selectionErrorBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->open();
}

int showWindow(const AppArguments& arguments)
{
    AppWindow window;
    window.restoreProfiles();
    if (arguments.plugins.isEmpty())
        window.loadPlugins(HostPluginLoader::pluginDirectory());
    else
        window.loadPlugins(arguments.plugins);
    window.restoreLayout();
    window.show();
    const bool isOpen = !arguments.scene.isEmpty() && window.openFile(arguments.scene);
    QString error;
    if (isOpen && !arguments.selection.isEmpty() && !window.select(arguments.selection, &error))
        tellWhatIsNotThere(window, error);
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    const AppArguments early = withoutDisplay(argc, argv);
    if (needsNoApplication(early))
        return print(early);
    // The editors are widgets, but nobody is to see them.
    if (early.action == AppArguments::ListExtensions)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (lacksDisplay(argc, argv))
        return refuse("There is no display to open a window on.");
    // Or an icon is drawn from its coarsest picture on a fine display.
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    Arguments given(argc, argv);
    const QApplication application(given.count(), given.values());
    QApplication::setApplicationName(QStringLiteral("tavrik"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tavrik"));
    const AppArguments arguments = AppArguments::parse(QApplication::arguments());
    if (arguments.action == AppArguments::Refuse)
        return print(arguments);
    SoTavrik::init();
    if (arguments.action == AppArguments::ListExtensions)
        return AppJobs::listExtensions(arguments);
    if (lacksPictures(arguments))
        return refuse("This platform of Qt cannot show a picture in three dimensions.");
    return AppJobs::isAskedFor(arguments) ? AppJobs::run(arguments) : showWindow(arguments);
}
