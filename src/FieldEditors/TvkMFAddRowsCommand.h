#pragma once

#include <TvkCommand.h>

class SoMField;

/** A run of rows inserted into a multiple-value field: empty texts where the field takes a text. */
class TvkMFAddRowsCommand final : public TvkCommand
{
public:
    TvkMFAddRowsCommand(SoMField* field, int start, int count);

    /** Inserts the rows and notifies the field's watchers once for the whole field. */
    void execute() override;
    void undo() override;
    void redo() override;

private:
    SoMField* const m_field; ///< not owned
    const int m_start;
    const int m_count;
};
