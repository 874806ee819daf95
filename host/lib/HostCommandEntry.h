#pragma once

#include <QUndoCommand>

#include <memory>

class HostFieldWatch;
class HostUndoStack;
class TvkCommand;

/**
 * One entry of the undo stack: owns a command until the command's field dies. After that the entry
 * is dead: it does nothing when undone or redone, and the stack takes it out.
 */
class HostCommandEntry : public QUndoCommand
{
public:
    HostCommandEntry(std::unique_ptr<TvkCommand> command, HostUndoStack& stack);
    ~HostCommandEntry() override;

    void execute();
    void undo() override;
    /** Does nothing the first time, when the stack takes the entry: the command is executed then.
     */
    void redo() override;

    bool isDead() const { return m_dead; }
    /** Makes the entry dead and deletes its command: at once, or when it returns if it is running.
     */
    void drop();

private:
    void run(void (TvkCommand::*operation)());

    std::unique_ptr<TvkCommand> m_command;
    HostUndoStack& m_stack;
    HostFieldWatch* m_watch; ///< null where the command has no field; owned by the stack
    bool m_recorded = false;
    bool m_running = false;
    bool m_dead = false;
};
