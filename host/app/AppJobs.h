#pragma once

#include "app/AppArguments.h"

/** What the program does from the command line, without a user, and then ends. */
namespace AppJobs {

enum ExitCode { Done = 0, Failed = 1, Refused = 2 };

/** Prints a line for each extension of the plug-ins. Needs QApplication, but no display. */
int listExtensions(const AppArguments& arguments);

/** Whether the arguments ask for one of the jobs that show a window. */
bool isAskedFor(const AppArguments& arguments);
/** Does that job. */
int run(const AppArguments& arguments);

} // namespace AppJobs
