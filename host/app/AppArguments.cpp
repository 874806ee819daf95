#include "app/AppArguments.h"

#include <QCommandLineParser>

namespace {

const char* const Description =
    "Shows the scene graph of an Open Inventor (.iv) or VRML (.wrl) file beside its picture, and "
    "lets you edit every field of it.\n"
    "Qt's own options, such as -platform and -style, are understood too.";

AppArguments answer(AppArguments::Action action, const QString& message)
{
    AppArguments arguments;
    arguments.action = action;
    arguments.message = message;
    return arguments;
}

} // namespace

AppArguments AppArguments::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption tour(QStringLiteral("tour"),
                                  QStringLiteral("Edits the scene by itself, step by step, and "
                                                 "writes a picture of each step into <folder>."),
                                  QStringLiteral("folder"));
    const QCommandLineOption gallery(QStringLiteral("gallery"),
                                     QStringLiteral("Writes a picture of each field editor into "
                                                    "<folder>, and ends."),
                                     QStringLiteral("folder"));
    parser.setApplicationDescription(QLatin1String(Description));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOption(tour);
    parser.addOption(gallery);
    parser.addPositionalArgument(QStringLiteral("scene"), QStringLiteral("The file to open."),
                                 QStringLiteral("[scene]"));
    if (!parser.parse(arguments))
        return answer(Refuse, parser.errorText());
    if (parser.isSet(help))
        return answer(PrintHelp, parser.helpText());
    if (parser.isSet(version))
        return answer(PrintVersion, QStringLiteral("tavrik " TAVRIK_VERSION));
    const QStringList scenes = parser.positionalArguments();
    if (scenes.size() > 1)
        return answer(Refuse, QStringLiteral("One scene at a time, please."));
    AppArguments result;
    result.scene = scenes.value(0);
    result.tourFolder = parser.value(tour);
    result.galleryFolder = parser.value(gallery);
    if (parser.isSet(gallery) && result.galleryFolder.isEmpty()) {
        return answer(Refuse, QStringLiteral("A gallery needs a folder for its pictures."));
    }
    if (parser.isSet(tour) && (result.tourFolder.isEmpty() || result.scene.isEmpty())) {
        return answer(Refuse,
                      QStringLiteral("A tour needs a folder for its pictures and a scene."));
    }
    return result;
}
