#pragma once

#include <TvkCommand.h>

#include <Inventor/SbString.h>

class SoMField;

/** One colour of a multiple-value field, as it stands after the widget has written it. */
class TvkMFSetFieldValueCommand final : public TvkCommand
{
public:
    /**
     * Made after the widget has written the value, which is read here.
     *
     * Kept on purpose: it is read twice, into the old text and into the new one, so that undo and
     * redo both write the new value.
     */
    TvkMFSetFieldValueCommand(SoMField* field, int index);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    SoMField* const m_field; ///< not owned
    const int m_index;
    SbString m_oldValue;
    SbString m_newValue;
};
