#pragma once

#include <QString>
#include <QStringList>

/** What the user asked for on the command line. */
struct AppArguments
{
    enum Action { Show, PrintHelp, PrintVersion, Refuse };

    Action action = Show;
    QString scene;         ///< empty: no scene
    QString tourFolder;    ///< empty: no tour
    QString galleryFolder; ///< empty: no gallery
    QString message;       ///< what to print, for the last three actions

    /** Reads the arguments, the program's own name first. Qt has taken its own options out. */
    static AppArguments parse(const QStringList& arguments);
};
