#include "lib/HostUndoStack.h"

#include "lib/HostCommandEntry.h"
#include "lib/HostFieldWatch.h"

#include <TvkCommand.h>

#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <utility>

HostUndoStack::Operation::Operation(HostUndoStack& stack) : m_stack(stack)
{
    ++m_stack.m_operations;
}

HostUndoStack::Operation::~Operation()
{
    if (--m_stack.m_operations == 0 && m_stack.m_mustSettle)
        m_stack.m_settleTimer.start();
}

HostUndoStack::HostUndoStack(QObject* parent) : QObject(parent)
{
    m_settleTimer.setSingleShot(true);
    connect(&m_settleTimer, SIGNAL(timeout()), SLOT(settle()));
}

HostUndoStack::~HostUndoStack()
{
    // The entries sign off at members that would be gone when the stack goes by itself.
    clear();
}

void HostUndoStack::push(TvkCommand* command)
{
    if (!command)
        return;
    m_pending.push_back(
        std::make_unique<HostCommandEntry>(std::unique_ptr<TvkCommand>(command), *this));
    m_pending.back()->execute();
    m_mustSettle = true;
    settle();
}

void HostUndoStack::clear()
{
    if (m_operations > 0) {
        dropAll();
        return;
    }
    {
        const Operation clearing(*this);
        m_pending.clear();
        m_stack.clear();
        m_hasDeadEntries = false;
    }
    settle();
}

HostFieldWatch* HostUndoStack::watch(SoField* field)
{
    if (!field)
        return nullptr;
    auto& watch = m_watches[field];
    if (!watch)
        watch = std::make_unique<HostFieldWatch>(field, *this);
    return watch.get();
}

void HostUndoStack::unwatch(HostFieldWatch& watch, HostCommandEntry& entry)
{
    if (watch.entries().erase(&entry) > 0 && watch.entries().empty())
        m_watches.erase(watch.field());
}

void HostUndoStack::fieldDied(HostFieldWatch& watch)
{
    // Deleting a command may free nodes and so let further fields die.
    const Operation dropping(*this);
    const HostFieldWatch::Entries entries = std::exchange(watch.entries(), {});
    // Off the map at once: the address may soon be another field's.
    const auto found = m_watches.find(watch.field());
    m_diedWatches.push_back(std::move(found->second));
    m_watches.erase(found);
    for (HostCommandEntry* entry : entries)
        entry->drop();
    m_hasDeadEntries = true;
    m_mustSettle = true;
}

void HostUndoStack::dropAll()
{
    const Operation dropping(*this);
    for (int i = 0; i < m_stack.count(); ++i)
        entry(i).drop();
    // Counted, since a command that dies may push another.
    for (std::size_t i = 0; i < m_pending.size(); ++i) // NOLINT(modernize-loop-convert)
        m_pending[i]->drop();
    m_hasDeadEntries = true;
    m_mustSettle = true;
}

void HostUndoStack::settle()
{
    // While a command runs, be it in an event loop of its own, the list stays as it is; the end of
    // the operation comes back here.
    if (m_operations > 0)
        return;
    m_mustSettle = false;
    m_settleTimer.stop();
    m_diedWatches.clear();
    if (std::exchange(m_hasDeadEntries, false))
        takeOutDeadEntries();
    recordPending();
}

void HostUndoStack::recordPending()
{
    while (m_operations == 0 && !m_pending.empty()) {
        std::unique_ptr<HostCommandEntry> entry = std::move(m_pending.front());
        m_pending.erase(m_pending.begin());
        if (!entry->isDead())
            m_stack.push(entry.release());
    }
}

void HostUndoStack::takeOutDeadEntries()
{
    int index = m_stack.index();
    int cleanIndex = m_stack.cleanIndex();
    for (int i = 0; i < m_stack.count(); ++i) {
        if (!entry(i).isDead())
            continue;
        entry(i).setObsolete(true);
        index -= i < m_stack.index() ? 1 : 0;
        cleanIndex -= i < m_stack.cleanIndex() ? 1 : 0;
    }
    // Edits that vanish do not bring back what was saved.
    if (index == cleanIndex && !m_stack.isClean())
        cleanIndex = -1;
    rearrange(index, cleanIndex);
    emit m_stack.indexChanged(m_stack.index());
    emit m_stack.canUndoChanged(m_stack.canUndo());
    emit m_stack.undoTextChanged(m_stack.undoText());
    emit m_stack.canRedoChanged(m_stack.canRedo());
    emit m_stack.redoTextChanged(m_stack.redoText());
}

/** QUndoStack takes obsolete entries out where it passes them: it is led over all of them. */
void HostUndoStack::rearrange(int index, int cleanIndex)
{
    const QScopedValueRollback<bool> rearranging(m_rearranging, true);
    const QSignalBlocker oneSignalAtTheEnd(m_stack);
    m_stack.setIndex(m_stack.count());
    m_stack.setIndex(0);
    m_stack.resetClean();
    if (cleanIndex >= 0) {
        m_stack.setIndex(cleanIndex);
        m_stack.setClean();
    }
    m_stack.setIndex(index);
}

HostCommandEntry& HostUndoStack::entry(int i) const
{
    // The stack answers them const, but they are ours.
    return *const_cast<HostCommandEntry*>(static_cast<const HostCommandEntry*>(m_stack.command(i)));
}
