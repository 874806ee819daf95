#include "FieldEditors/TvkMFSetFieldValueCommand.h"

#include "scenegraph/SoMFieldRows.h"

#include <Inventor/fields/SoMField.h>

TvkMFSetFieldValueCommand::TvkMFSetFieldValueCommand(SoMField* field, int index)
    : TvkCommand(field), m_field(field), m_index(index)
{
    SoMFieldRows::get1(m_field, m_index, m_oldValue);
    SoMFieldRows::get1(m_field, m_index, m_newValue);
}

void TvkMFSetFieldValueCommand::execute()
{
    // The widget has written the value, and the constructor has read it.
}

void TvkMFSetFieldValueCommand::undo()
{
    SoMFieldRows::set1(m_field, m_index, m_oldValue);
}

void TvkMFSetFieldValueCommand::redo()
{
    SoMFieldRows::set1(m_field, m_index, m_newValue);
}
