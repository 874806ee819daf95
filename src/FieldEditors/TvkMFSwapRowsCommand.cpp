#include "FieldEditors/TvkMFSwapRowsCommand.h"

#include "scenegraph/SoMFieldRows.h"

#include <Inventor/SbString.h>
#include <Inventor/fields/SoMField.h>

TvkMFSwapRowsCommand::TvkMFSwapRowsCommand(SoMField* field, int rowA, int rowB)
    : TvkCommand(field), m_field(field), m_rowA(rowA), m_rowB(rowB)
{}

void TvkMFSwapRowsCommand::execute()
{
    SbString textA;
    SbString textB;
    if (!SoMFieldRows::get1(m_field, m_rowA, textA) || !SoMFieldRows::get1(m_field, m_rowB, textB))
        return;
    SoMFieldRows::set1(m_field, m_rowA, textB);
    SoMFieldRows::set1(m_field, m_rowB, textA);
}

void TvkMFSwapRowsCommand::undo()
{
    execute();
}

void TvkMFSwapRowsCommand::redo()
{
    execute();
}
