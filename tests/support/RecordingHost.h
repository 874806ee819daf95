#pragma once

#include "tests/support/RecordingServices.h"
#include "tests/support/RecordingShell.h"

/** A host for tests of single extensions: make one on the stack, then drive the extension. */
struct RecordingHost
{
    RecordingServices services;
    RecordingShell shell;
};
