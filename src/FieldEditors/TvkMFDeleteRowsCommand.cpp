#include "FieldEditors/TvkMFDeleteRowsCommand.h"

#include "scenegraph/SoMFieldRows.h"

#include <Inventor/fields/SoMField.h>

TvkMFDeleteRowsCommand::TvkMFDeleteRowsCommand(SoMField* field, int start, int count)
    : TvkCommand(field), m_field(field), m_start(start), m_count(count)
{
    // Of a run outside the field, which every operation refuses as a whole, nothing is kept.
    if (m_count <= 0 || m_count > m_field->getNum())
        return;
    m_savedValues = std::make_unique<SbString[]>(static_cast<std::size_t>(m_count));
    if (!SoMFieldRows::readTexts(m_field, m_start, m_count, m_savedValues.get()))
        m_savedValues.reset();
}

TvkMFDeleteRowsCommand::~TvkMFDeleteRowsCommand() = default;

void TvkMFDeleteRowsCommand::execute()
{
    SoMFieldRows::deleteValues(m_field, m_start, m_count);
}

void TvkMFDeleteRowsCommand::undo()
{
    if (m_savedValues)
        SoMFieldRows::insertTexts(m_field, m_start, m_count, m_savedValues.get());
}

void TvkMFDeleteRowsCommand::redo()
{
    execute();
}
