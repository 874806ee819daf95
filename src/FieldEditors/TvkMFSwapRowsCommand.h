#pragma once

#include <TvkCommand.h>

class SoMField;

/** Two rows of a multiple-value field exchanged, by their texts; its own inverse. */
class TvkMFSwapRowsCommand final : public TvkCommand
{
public:
    TvkMFSwapRowsCommand(SoMField* field, int rowA, int rowB);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    SoMField* const m_field; ///< not owned
    const int m_rowA;
    const int m_rowB;
};
