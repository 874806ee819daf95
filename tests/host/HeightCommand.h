#pragma once

#include <TvkCommand.h>

#include <Inventor/nodes/SoCone.h>

/** A command that really writes: undo and redo move a cone's height between two values. */
class HeightCommand : public TvkCommand
{
public:
    HeightCommand(SoCone& cone, float to)
        : TvkCommand(&cone.height), m_cone(cone), m_from(cone.height.getValue()), m_to(to)
    {}
    void execute() override { m_cone.height.setValue(m_to); }
    void undo() override { m_cone.height.setValue(m_from); }
    void redo() override { execute(); }

private:
    SoCone& m_cone;
    const float m_from;
    const float m_to;
};
