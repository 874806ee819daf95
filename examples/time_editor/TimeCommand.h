#pragma once

#include <TvkCommand.h>

#include <Inventor/fields/SoSFTime.h>

/** One edit of a time, with the value before and the one after. */
class TimeCommand final : public TvkCommand
{
public:
    /** Made after the field has been written. */
    TimeCommand(SoSFTime& field, const SbTime& before)
        : TvkCommand(&field), m_field(field), m_before(before), m_after(field.getValue())
    {}

    void execute() override {} // the editor has written the field
    void undo() override { m_field.setValue(m_before); }
    void redo() override { m_field.setValue(m_after); }

private:
    SoSFTime& m_field; ///< the host drops the command when the field's container dies
    const SbTime m_before;
    const SbTime m_after;
};
