#pragma once

#include "benchmarks/support/MFieldKind.h"

#include <Inventor/nodes/SoNode.h>

/** A field with a value in each of its rows, in a node that lives as long as this. */
class FilledField
{
public:
    /** The first row holds the value that stands for firstNumber, the others count on. */
    FilledField(const MFieldKind& kind, int rows, int firstNumber = 0);
    ~FilledField();
    FilledField(const FilledField&) = delete;
    FilledField& operator=(const FilledField&) = delete;

    SoMField& field() const { return *m_field; }
    void setRow(int row, int number) const { m_kind.setRow(*m_field, row, number); }

private:
    const MFieldKind m_kind;
    SoNode* m_node = nullptr;
    SoMField* m_field = nullptr;
};
