#include "FieldEditors/TvkFieldIgnoredCommand.h"

#include <Inventor/fields/SoField.h>

TvkFieldIgnoredCommand::TvkFieldIgnoredCommand(SoField* field, bool ignored)
    : TvkCommand(field), m_field(field), m_ignored(ignored)
{}

void TvkFieldIgnoredCommand::execute()
{
    m_field->setIgnored(m_ignored);
}

void TvkFieldIgnoredCommand::undo()
{
    m_field->setIgnored(!m_ignored);
}

void TvkFieldIgnoredCommand::redo()
{
    execute();
}
