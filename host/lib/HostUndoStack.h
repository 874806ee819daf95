#pragma once

#include "TavrikHostExport.h"

#include <QObject>
#include <QTimer>
#include <QUndoStack>

#include <memory>
#include <unordered_map>
#include <vector>

class HostCommandEntry;
class HostFieldWatch;
class SoField;
class TvkCommand;

/**
 * The undo stack: owns every command pushed, executes it once, and drops the entries of a field as
 * soon as its container dies, wherever in the stack they stand. It holds no reference to a node.
 *
 * The commands of a dead field are deleted at once; their entries, which until then do nothing,
 * leave the list from the event loop, since a death may come from inside an undo or a sensor.
 */
class TAVRIKHOST_EXPORT HostUndoStack : public QObject
{
    Q_OBJECT

public:
    explicit HostUndoStack(QObject* parent = nullptr);
    ~HostUndoStack() override;

    /**
     * Takes the command over, executes it, records it. Null is ignored. A command pushed while
     * another one runs is executed at once too, and recorded when the other one is done.
     */
    void push(TvkCommand* command);
    /** Deletes every entry. Call it before a plug-in whose commands it may hold is unloaded. */
    void clear();

    /** For actions and for the view that lists the entries. Never push to it or clear it directly.
     */
    QUndoStack& stack() { return m_stack; }

    /** How many fields are watched: one for all entries on a field. */
    int watchedFields() const { return static_cast<int>(m_watches.size()); }

signals:
    /** A command was executed, undone or redone; for counters and for the "modified" mark. */
    void edited();

private slots:
    /** Records the commands pushed meanwhile and takes out the dead entries. */
    void settle();

private:
    friend class HostCommandEntry;
    friend class HostFieldWatch;

    /** While one lives, commands run and the list of entries must not change. */
    class Operation
    {
    public:
        explicit Operation(HostUndoStack& stack);
        ~Operation();
        Operation(const Operation&) = delete;
        Operation& operator=(const Operation&) = delete;

    private:
        HostUndoStack& m_stack;
    };

    HostFieldWatch* watch(SoField* field);
    void unwatch(HostFieldWatch& watch, HostCommandEntry& entry);
    void fieldDied(HostFieldWatch& watch);
    void dropAll();
    bool isRearranging() const { return m_rearranging; }

    void recordPending();
    void takeOutDeadEntries();
    void rearrange(int index, int cleanIndex);
    HostCommandEntry& entry(int i) const;

    QUndoStack m_stack;
    std::unordered_map<SoField*, std::unique_ptr<HostFieldWatch>> m_watches;
    std::vector<std::unique_ptr<HostFieldWatch>> m_diedWatches; ///< Coin may still be inside one
    std::vector<std::unique_ptr<HostCommandEntry>> m_pending;   ///< executed, not yet recorded
    QTimer m_settleTimer;
    int m_operations = 0;
    bool m_mustSettle = false;
    bool m_hasDeadEntries = false;
    bool m_rearranging = false; ///< entries are passed over without being undone or redone
};
