#include "benchmarks/support/FilledField.h"

#include <Inventor/SbName.h>

FilledField::FilledField(const MFieldKind& kind, int rows, int firstNumber) : m_kind(kind)
{
    m_node = static_cast<SoNode*>(SoType::fromName(kind.nodeType).createInstance());
    m_node->ref();
    m_field = static_cast<SoMField*>(m_node->getField(kind.fieldName));
    m_field->setNum(rows);
    for (int row = 0; row < rows; ++row)
        setRow(row, firstNumber + row);
}

FilledField::~FilledField()
{
    m_node->unref();
}
