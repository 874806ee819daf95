#pragma once

#include <TvkCommand.h>
#include <TvkServices.h>

#include <memory>
#include <vector>

/**
 * Host services for tests: executes every pushed command once, keeps it, and lets the test undo and
 * redo any one of them. Says of itself that it is the host's services.
 */
class RecordingServices : public TvkServices
{
    Q_OBJECT

public:
    RecordingServices();

    void pushCommand(TvkCommand* command) override;

    int count() const { return static_cast<int>(commands.size()); }
    TvkCommand& at(int i) const { return *commands.at(static_cast<std::size_t>(i)); }
    TvkCommand& last() const { return *commands.back(); }
    void undo(int i) const { at(i).undo(); }
    void redo(int i) const { at(i).redo(); }

    /** Announce a selection, as a host does. */
    void selectNode(SoFieldContainer* node);
    void selectField(SoField* field);

    std::vector<std::unique_ptr<TvkCommand>> commands; ///< in the order in which they were pushed
    int nullCommands = 0;                              ///< how many null commands were handed over
};
