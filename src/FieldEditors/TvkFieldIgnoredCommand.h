#pragma once

#include <TvkCommand.h>

/** A field's ignore flag switched. */
class TvkFieldIgnoredCommand final : public TvkCommand
{
public:
    /** `ignored` is the state that the edit has set. */
    TvkFieldIgnoredCommand(SoField* field, bool ignored);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    SoField* const m_field; ///< not owned
    const bool m_ignored;
};
