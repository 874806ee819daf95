#include "lib/HostFieldWatch.h"

#include "lib/HostUndoStack.h"

HostFieldWatch::HostFieldWatch(SoField* field, HostUndoStack& stack)
    : m_field(field), m_stack(stack)
{
    setDeleteCallback(fieldDied, this);
    attach(field);
}

void HostFieldWatch::fieldDied(void* watch, SoSensor*)
{
    auto& self = *static_cast<HostFieldWatch*>(watch);
    self.m_stack.fieldDied(self);
}
