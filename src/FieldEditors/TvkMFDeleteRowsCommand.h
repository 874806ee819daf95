#pragma once

#include <TvkCommand.h>

#include <Inventor/SbString.h>

#include <memory>

class SoMField;

/** A run of rows deleted from a multiple-value field, kept with their texts. */
class TvkMFDeleteRowsCommand final : public TvkCommand
{
public:
    /** Made before the rows are deleted: their texts are read here. */
    TvkMFDeleteRowsCommand(SoMField* field, int start, int count);
    ~TvkMFDeleteRowsCommand() override;

    void execute() override;
    /** Puts the rows back, each with a notification of its own. */
    void undo() override;
    void redo() override;

private:
    SoMField* const m_field; ///< not owned
    std::unique_ptr<SbString[]> m_savedValues;
    const int m_start;
    const int m_count;
};
