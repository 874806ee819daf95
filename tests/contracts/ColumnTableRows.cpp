#include "tests/contracts/TableRows.h"

#include "FieldEditors/MFWidgets/DvMFColorWidget.h"
#include "FieldEditors/MFWidgets/DvMFPlaneWidget.h"
#include "FieldEditors/MFWidgets/DvMFRotationWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec2fWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec2i32Widget.h"
#include "FieldEditors/MFWidgets/DvMFVec2sWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec3fWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec4fWidget.h"

namespace {

/** The texts that differ from type to type. */
struct Texts
{
    QStringList headers;
    QStringList atFirst;
    const char* outside;
    QStringList shownOutside;
    const char* rough;
    const char* rowAfter; ///< with 9 typed into one of its cells
    const char* emptyRow;
    int column = 1; ///< of that cell
};

template <class Editor, class Field>
TableRow row(const char* name, const char* label, const char* field, int kind, const Texts& texts)
{
    TableRow row;
    row.make = &makeTableEditor<Editor>;
    row.name = name;
    row.handledType = &Field::getClassTypeId;
    row.label = label;
    row.field = field;
    row.headers = texts.headers;
    row.valueKind = kind;
    row.shownAtFirst = texts.atFirst;
    row.outside = texts.outside;
    row.shownOutside = texts.shownOutside;
    row.rough = texts.rough;
    row.edit = {enteringIntoCell(texts.column, "9"), texts.rowAfter, 1};
    row.emptyRow = texts.emptyRow;
    row.copiesWhenAdding = true;
    row.swapsByCommand = false;
    row.beginnings = {aCellIsOpen(texts.column), aCellIsModified(texts.column, "9")};
    return row;
}

const Texts s_integers = {{"x", "y"},
                          {"1|2", "3|4", "5|6"},
                          "[7 8, 9 10, 11 12, 13 14]",
                          {"7|8", "9|10", "11|12", "13|14"},
                          "[-32768 32767]",
                          "3 9",
                          "0 0"};
const Texts s_pairs = {{"x", "y"},
                       {"1|2", "3|4", "5|6"},
                       "[7 8, 9 10, 11 12, 13 14]",
                       {"7|8", "9|10", "11|12", "13|14"},
                       "[0.333333343 1.23456788]",
                       "3 9",
                       "0 0"};
const Texts s_triples = {{"x", "y", "z"},
                         {"1|2|3", "4|5|6", "7|8|9"},
                         "[1 1 1, 2 2 2, 3 3 3, 4 4 4]",
                         {"1|1|1", "2|2|2", "3|3|3", "4|4|4"},
                         "[0.333333343 1.23456788 1e-30]",
                         "4 9 6",
                         "0 0 0"};
const Texts s_colors = {{"x", "y", "z"},
                        {"1|0|0.5", "0|1|0.5", "0.25|0.5|0.75"},
                        "[1 1 1, 0 0 0, 0.5 0.5 0.5, 0 0 1]",
                        {"1|1|1", "0|0|0", "0.5|0.5|0.5", "0|0|1"},
                        "[0.333333343 0.123456788 1e-30]",
                        "0 9 0.5",
                        "0 0 0"};
const Texts s_quadruples = {{"x", "y", "z", "w"},
                            {"1|2|3|4", "5|6|7|8", "9|10|11|12"},
                            "[1 1 1 1, 2 2 2 2, 3 3 3 3, 4 4 4 4]",
                            {"1|1|1|1", "2|2|2|2", "3|3|3|3", "4|4|4|4"},
                            "[0.333333343 1.23456788 1e-30 4]",
                            "5 9 7 8",
                            "0 0 0 0"};
const Texts s_planes = {{"x", "y", "z", "distance"},
                        {"1|||", "0|||", "0|||"},
                        "[0 1 0 1, 1 0 0 2, 0 0 1 3, 0 0 1 4]",
                        {"0|||", "1|||", "0|||", "0|||"},
                        "[1 2 3 0.333333343]",
                        "0 1 0 9", // a normal would be given the length 1 again
                        "0 0 0 0",
                        3};
const Texts s_rotations = {{"x", "y", "z", "radians"},
                           {"1|||", "0|||", "0|||"},
                           "[0 0 1 0, 1 0 0 3.1415927, 0 0 1 0, 0 0 1 0]",
                           {"0|||", "1|||", "0|||", "0|||"},
                           "[1 2 3 0.333333343]",
                           "0 1 0 2.9202783",
                           "0 0 1 0"};

} // namespace

std::vector<TableRow> columnTableRows()
{
    using Delegate = DvMFieldTableItemDelegate;
    return {
        row<DvMFColorWidget, SoMFColor>("DvMFColorWidget", "MFColor", "mfColor",
                                        Delegate::FloatKind, s_colors),
        row<DvMFPlaneWidget, SoMFPlane>("DvMFPlaneWidget", "MFPlane", "mfPlane",
                                        Delegate::FloatKind, s_planes),
        row<DvMFRotationWidget, SoMFRotation>("DvMFRotationWidget", "MFRotation", "mfRotation",
                                              Delegate::FloatKind, s_rotations),
        row<DvMFVec2fWidget, SoMFVec2f>("DvMFVec2fWidget", "MFVec2f", "mfVec2f",
                                        Delegate::FloatKind, s_pairs),
        row<DvMFVec2i32Widget, SoMFVec2i32>("DvMFVec2i32Widget", "MFVec2i32", "mfVec2i32",
                                            Delegate::Int32Kind, s_integers),
        row<DvMFVec2sWidget, SoMFVec2s>("DvMFVec2sWidget", "MFVec2s", "mfVec2s", Delegate::TextKind,
                                        s_integers),
        row<DvMFVec3fWidget, SoMFVec3f>("DvMFVec3fWidget", "MFVec3f", "mfVec3f",
                                        Delegate::FloatKind, s_triples),
        row<DvMFVec4fWidget, SoMFVec4f>("DvMFVec4fWidget", "MFVec4f", "mfVec4f",
                                        Delegate::FloatKind, s_quadruples),
    };
}
