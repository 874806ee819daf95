#pragma once

#include <TvkCommand.h>

#include <Inventor/SbString.h>

/** A field set back to its default. */
class TvkFieldSetDefaultCommand final : public TvkCommand
{
public:
    /**
     * Made after the default has been written; `defaultField`, of the same kind, is only read here.
     *
     * Kept on purpose: the text before is read here too, when the field already holds its default,
     * so that undoing leaves the default in place.
     */
    TvkFieldSetDefaultCommand(SoField* field, SoField* defaultField);

    void execute() override;
    void undo() override;
    void redo() override;

    /** Kept on purpose: recorded, though none of the operations needs it. */
    bool isMultiple() const { return m_isMultiple; }

private:
    void write(const SbString& text);

    SoField* const m_field; ///< not owned
    const bool m_isMultiple;
    SbString m_defaultValue;
    SbString m_previousValue;
};
