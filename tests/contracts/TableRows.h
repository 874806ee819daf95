#pragma once

#include "tests/support/TableRig.h"

#include <functional>
#include <memory>
#include <vector>

/** What every multiple-value editor promises, filled in for one of them. */
struct TableRow
{
    /** Something that the user has begun and not ended, such as "a line is modified". */
    struct Beginning
    {
        const char* name;
        std::function<void(const TableRig&)> begin;
        bool endsInACommit = true; ///< what going on to another field makes of it
    };

    /** One action of the user's that commits into the second row. */
    struct Edit
    {
        std::function<void(const TableRig&)> act;
        const char* rowAfter; ///< the row's text
        int commands;         ///< that it pushes: one or none
    };

    std::function<std::unique_ptr<DvMFieldWidget>()> make;
    const char* name; ///< the editor's object name
    SoType (*handledType)();
    const char* label;
    const char* field; ///< of SoEveryField
    QStringList headers;
    int valueKind;
    QStringList shownAtFirst;
    const char* outside; ///< another text for the field, of four rows
    QStringList shownOutside;
    /** A value that the table cannot show to the last bit, where there is one. */
    const char* rough;
    Edit edit;
    const char* emptyRow;  ///< what a row added to no rows holds
    bool copiesWhenAdding; ///< a row added to others holds a copy; else the same as emptyRow
    bool swapsByCommand;   ///< else directly
    std::vector<Beginning> beginnings;
};

/** One file a family; the suite runs over all of them. */
std::vector<TableRow> numberTableRows();
std::vector<TableRow> columnTableRows();
std::vector<TableRow> otherTableRows();

// What the rows are written with.

template <class Editor>
std::unique_ptr<DvMFieldWidget> makeTableEditor()
{
    return std::make_unique<Editor>();
}

/** Types into a cell of the second row, without an end. */
inline std::function<void(const TableRig&)> typingIntoCell(int column, const char* text)
{
    return [column, text](const TableRig& rig) { rig.type(1, column, QString::fromLatin1(text)); };
}

inline std::function<void(const TableRig&)> enteringIntoCell(int column, const char* text)
{
    return [column, text](const TableRig& rig) { rig.enter(1, column, QString::fromLatin1(text)); };
}

inline TableRow::Beginning aCellIsOpen(int column)
{
    return {"a cell is open", [column](const TableRig& rig) { rig.openCell(1, column); }, false};
}

inline TableRow::Beginning aCellIsModified(int column, const char* text)
{
    return {"a cell's line is modified", typingIntoCell(column, text)};
}
