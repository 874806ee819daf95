#pragma once

#include <Inventor/sensors/SoFieldSensor.h>

#include <unordered_set>

class HostCommandEntry;
class HostUndoStack;

/**
 * Tells the undo stack of the death of one field, and knows the entries that must go with it. One
 * serves all entries on a field, and it costs nothing while the field merely changes.
 */
class HostFieldWatch : private SoFieldSensor
{
public:
    using Entries = std::unordered_set<HostCommandEntry*>;

    HostFieldWatch(SoField* field, HostUndoStack& stack);

    /** For looking the watch up. Once the field has died it only tells which field that was. */
    SoField* field() const { return m_field; }
    /** Not owned. */
    Entries& entries() { return m_entries; }

private:
    /** A change of the field concerns nobody here, so that it is not even scheduled. */
    void notify(SoNotList*) override {}
    static void fieldDied(void* watch, SoSensor*);

    SoField* const m_field; ///< never dereferenced
    HostUndoStack& m_stack;
    Entries m_entries;
};
