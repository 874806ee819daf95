#pragma once

#include <TvkCommand.h>

#include <Inventor/SbString.h>

class SoMField;

/** One edit of one value of a multiple-value field, kept as the value's text before and after. */
class TvkMFSetValueCommand final : public TvkCommand
{
public:
    /**
     * Made after the widget has written the value. A non-empty previous text is taken over, and the
     * caller's string emptied; else the value's text is read here.
     *
     * Kept on purpose: for the widgets that have no previous text, the text read here is already
     * the new one, so that undoing leaves the value as it is.
     */
    TvkMFSetValueCommand(SoMField* field, int index, SbString& previousText);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    SoMField* const m_field; ///< not owned
    const int m_index;
    SbString m_oldValue;
    SbString m_newValue;
};
