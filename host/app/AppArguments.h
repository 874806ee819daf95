#pragma once

#include <QString>
#include <QStringList>

/** What the user asked for on the command line. */
struct AppArguments
{
    enum Action { Show, PrintHelp, PrintVersion, ListExtensions, Refuse };

    Action action = Show;
    QString scene;          ///< empty: no scene
    QStringList plugins;    ///< empty: those of the plug-in folder
    QString selection;      ///< a node's path, perhaps with a field; empty: nothing
    QString screenshotFile; ///< empty: no screenshot
    QString tourFolder;     ///< empty: no tour
    QString galleryFolder;  ///< empty: no gallery
    QString message;        ///< what to print: help, version, or why the arguments are refused

    /** Reads the arguments, the program's own name first. Qt has taken its own options out. */
    static AppArguments parse(const QStringList& arguments);
};
