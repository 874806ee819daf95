#include "FieldEditors/TvkMFAddRowsCommand.h"

#include "scenegraph/SoMFieldRows.h"

#include <Inventor/fields/SoMField.h>

TvkMFAddRowsCommand::TvkMFAddRowsCommand(SoMField* field, int start, int count)
    : TvkCommand(field), m_field(field), m_start(start), m_count(count)
{}

void TvkMFAddRowsCommand::execute()
{
    if (SoMFieldRows::insertEmpty(m_field, m_start, m_count))
        m_field->touch();
}

void TvkMFAddRowsCommand::undo()
{
    SoMFieldRows::deleteValues(m_field, m_start, m_count);
}

void TvkMFAddRowsCommand::redo()
{
    execute();
}
