#include "FieldEditors/TvkFieldSetDefaultCommand.h"

#include "scenegraph/SoFieldText.h"

#include <Inventor/fields/SoMField.h>

TvkFieldSetDefaultCommand::TvkFieldSetDefaultCommand(SoField* field, SoField* defaultField)
    : TvkCommand(field), m_field(field),
      m_isMultiple(field->isOfType(SoMField::getClassTypeId()) != FALSE)
{
    SoFieldText::get(m_field, m_previousValue);
    SoFieldText::get(defaultField, m_defaultValue);
}

void TvkFieldSetDefaultCommand::write(const SbString& text)
{
    // Writing a text makes Coin take the field for changed; a field at its default is one that the
    // lists show as such and that scene files leave out.
    if (SoFieldText::set(m_field, text) && text == m_defaultValue)
        m_field->setDefault(TRUE);
}

void TvkFieldSetDefaultCommand::execute()
{
    write(m_defaultValue);
}

void TvkFieldSetDefaultCommand::undo()
{
    write(m_previousValue);
}

void TvkFieldSetDefaultCommand::redo()
{
    execute();
}
