#include "app/AppArguments.h"

#include <QCommandLineParser>

namespace {

const char* const Description =
    "Shows the scene graph of an Open Inventor (.iv) or VRML (.wrl) file beside its picture, and "
    "lets you edit every field of it.\n"
    "Qt's own options, such as -platform and -style, are understood too.\n\n"
    "Exit codes: 0 done, 1 the work could not be done (the standard error says why), 2 the command "
    "line was not understood.";

AppArguments answer(AppArguments::Action action, const QString& message = {})
{
    AppArguments arguments;
    arguments.action = action;
    arguments.message = message;
    return arguments;
}

/** The options, in the order in which the help lists them. */
struct Options
{
    const QCommandLineOption plugin{
        QStringLiteral("plugin"),
        QStringLiteral("Loads this plug-in instead of those in the plug-in folder. May be given "
                       "several times."),
        QStringLiteral("file")};
    const QCommandLineOption list{
        QStringLiteral("list-extensions"),
        QStringLiteral("Lists what the plug-ins contribute, one line each in the order of "
                       "registration: class, name, description, vendor and version, with tabs "
                       "between them. Needs no display.")};
    const QCommandLineOption select{
        QStringLiteral("select"),
        QStringLiteral("Selects a node, and a field of it behind a dot, by its path as the tree's "
                       "\"Copy path\" gives it: /lamp/Transform[0].translation"),
        QStringLiteral("path")};
    const QCommandLineOption screenshot{
        QStringLiteral("screenshot"),
        QStringLiteral("Writes a picture of the whole window into <file>, and ends."),
        QStringLiteral("file")};
    const QCommandLineOption tour{QStringLiteral("tour"),
                                  QStringLiteral("Edits the scene by itself, step by step, writes "
                                                 "a picture of each step into <folder>, and ends."),
                                  QStringLiteral("folder")};
    const QCommandLineOption gallery{QStringLiteral("gallery"),
                                     QStringLiteral("Writes a picture of each field editor into "
                                                    "<folder>, and ends."),
                                     QStringLiteral("folder")};
};

/** Why these arguments cannot be followed together; empty when they can. */
QString objection(const QCommandLineParser& parser, const Options& options)
{
    if (parser.positionalArguments().size() > 1)
        return QStringLiteral("One scene at a time, please.");
    for (const auto& option : {options.plugin, options.select, options.screenshot, options.gallery})
        if (parser.isSet(option) && parser.value(option).isEmpty())
            return QStringLiteral("--%1 needs a %2.")
                .arg(option.names().first(), option.valueName());
    const int jobs = int(parser.isSet(options.screenshot)) + int(parser.isSet(options.tour)) +
                     int(parser.isSet(options.gallery));
    if (jobs > 1)
        return QStringLiteral("A screenshot, a tour or a gallery: one at a time, please.");
    const bool hasScene = !parser.positionalArguments().isEmpty();
    if (parser.isSet(options.tour) && (parser.value(options.tour).isEmpty() || !hasScene))
        return QStringLiteral("A tour needs a folder for its pictures and a scene.");
    if (parser.isSet(options.select) && !hasScene)
        return QStringLiteral("There is nothing to select without a scene.");
    return {};
}

} // namespace

AppArguments AppArguments::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    const Options options;
    // Those of Qt that it has not taken out are single words behind a single dash.
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser.setApplicationDescription(QLatin1String(Description));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions({options.plugin, options.list, options.select, options.screenshot,
                       options.tour, options.gallery});
    parser.addPositionalArgument(QStringLiteral("scene"), QStringLiteral("The file to open."),
                                 QStringLiteral("[scene]"));
    const bool isUnderstood = parser.parse(arguments);
    if (parser.isSet(help))
        return answer(PrintHelp, parser.helpText());
    if (parser.isSet(version))
        return answer(PrintVersion, QStringLiteral("tavrik " TAVRIK_VERSION));
    const QString refusal = isUnderstood ? objection(parser, options) : parser.errorText();
    AppArguments result = answer(refusal.isEmpty() ? Show : Refuse, refusal);
    if (parser.isSet(options.list) && refusal.isEmpty())
        result.action = ListExtensions;
    result.scene = parser.positionalArguments().value(0);
    result.plugins = parser.values(options.plugin);
    result.selection = parser.value(options.select);
    result.screenshotFile = parser.value(options.screenshot);
    result.tourFolder = parser.value(options.tour);
    result.galleryFolder = parser.value(options.gallery);
    return result;
}
