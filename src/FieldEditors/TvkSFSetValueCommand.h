#pragma once

#include <TvkCommand.h>

#include <Inventor/SbString.h>

/** One edit of a single-value field, kept as the field's text before and after. */
class TvkSFSetValueCommand final : public TvkCommand
{
public:
    /**
     * Made after the widget has written the field. A non-empty previous text is taken over, and the
     * caller's string emptied; else the field's text is read here.
     *
     * Kept on purpose: for the widgets that have no previous text, the text read here is already
     * the new one, so that undoing leaves the field as it is.
     */
    TvkSFSetValueCommand(SoField* field, SbString& previousText);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    SoField* const m_field; ///< not owned
    SbString m_oldValue;
    SbString m_newValue;
};
