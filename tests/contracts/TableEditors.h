#pragma once

#include "tests/contracts/TableRows.h"

/** All multiple-value editors as the rows of a data-driven test class, which derives from this. */
class TableEditors
{
public:
    static const std::vector<TableRow>& rows();
    /** One row for each editor; then fetchRow() is the one that the test is about. */
    static void addRows();
    /** One row for each thing that can be begun in each editor. */
    static void addBeginnings();
    static const TableRow& fetchRow();
    static const TableRow::Beginning& fetchBeginning();
    /** The table, the spin box and the field have the same rows. */
    static void verifyInStep(const TableRig& rig);
};
