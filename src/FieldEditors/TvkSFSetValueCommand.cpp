#include "FieldEditors/TvkSFSetValueCommand.h"

#include "scenegraph/SoFieldText.h"

#include <Inventor/fields/SoField.h>

TvkSFSetValueCommand::TvkSFSetValueCommand(SoField* field, SbString& previousText)
    : TvkCommand(field), m_field(field)
{
    if (previousText.getLength() > 0) {
        m_oldValue = previousText;
        previousText.makeEmpty();
    } else {
        SoFieldText::get(m_field, m_oldValue);
    }
}

void TvkSFSetValueCommand::execute()
{
    SoFieldText::get(m_field, m_newValue);
}

void TvkSFSetValueCommand::undo()
{
    SoFieldText::set(m_field, m_oldValue);
}

void TvkSFSetValueCommand::redo()
{
    SoFieldText::set(m_field, m_newValue);
}
