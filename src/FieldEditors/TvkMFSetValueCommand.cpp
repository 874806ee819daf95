#include "FieldEditors/TvkMFSetValueCommand.h"

#include "scenegraph/SoMFieldRows.h"

#include <Inventor/fields/SoMField.h>

TvkMFSetValueCommand::TvkMFSetValueCommand(SoMField* field, int index, SbString& previousText)
    : TvkCommand(field), m_field(field), m_index(index)
{
    if (previousText.getLength() > 0) {
        m_oldValue = previousText;
        previousText.makeEmpty();
    } else {
        SoMFieldRows::get1(m_field, m_index, m_oldValue);
    }
}

void TvkMFSetValueCommand::execute()
{
    SoMFieldRows::get1(m_field, m_index, m_newValue);
}

void TvkMFSetValueCommand::undo()
{
    SoMFieldRows::set1(m_field, m_index, m_oldValue);
}

void TvkMFSetValueCommand::redo()
{
    SoMFieldRows::set1(m_field, m_index, m_newValue);
}
