#include "lib/HostCommandEntry.h"

#include "lib/HostFieldPath.h"
#include "lib/HostFieldWatch.h"
#include "lib/HostUndoStack.h"

#include <TvkCommand.h>

#include <QCoreApplication>

#include <utility>

HostCommandEntry::HostCommandEntry(std::unique_ptr<TvkCommand> command, HostUndoStack& stack)
    : m_command(std::move(command)), m_stack(stack), m_watch(stack.watch(m_command->getField()))
{
    const QString path = HostFieldPath::text(m_command->getField());
    setText(path.isEmpty() ? QCoreApplication::translate("HostCommandEntry", "Edit") : path);
    if (m_watch)
        m_watch->entries().insert(this);
}

HostCommandEntry::~HostCommandEntry()
{
    drop();
}

void HostCommandEntry::execute()
{
    run(&TvkCommand::execute);
}

void HostCommandEntry::undo()
{
    run(&TvkCommand::undo);
}

void HostCommandEntry::redo()
{
    if (std::exchange(m_recorded, true))
        run(&TvkCommand::redo);
}

void HostCommandEntry::drop()
{
    m_dead = true;
    if (HostFieldWatch* watch = std::exchange(m_watch, nullptr))
        m_stack.unwatch(*watch, *this);
    // A running command that killed its own field is still on the call stack.
    if (!m_running)
        m_command.reset();
}

void HostCommandEntry::run(void (TvkCommand::*operation)())
{
    if (m_dead || m_running || m_stack.isRearranging())
        return;
    const HostUndoStack::Operation running(m_stack);
    m_running = true;
    (m_command.get()->*operation)();
    m_running = false;
    if (m_dead)
        m_command.reset();
    emit m_stack.edited();
}
