#include "tests/support/RecordingServices.h"

RecordingServices::RecordingServices()
{
    setInstance(this);
}

void RecordingServices::pushCommand(TvkCommand* command)
{
    if (!command) {
        ++nullCommands;
        return;
    }
    commands.emplace_back(command);
    command->execute();
}

void RecordingServices::selectNode(SoFieldContainer* node)
{
    emit selectedNodeChanged(node);
}

void RecordingServices::selectField(SoField* field)
{
    emit selectedFieldChanged(field);
}
