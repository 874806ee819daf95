#include "tests/contracts/CommandRows.h"

#include "FieldEditors/TvkFieldIgnoredCommand.h"
#include "FieldEditors/TvkFieldSetDefaultCommand.h"
#include "FieldEditors/TvkMFAddRowsCommand.h"
#include "FieldEditors/TvkMFDeleteRowsCommand.h"
#include "FieldEditors/TvkMFSetFieldValueCommand.h"
#include "FieldEditors/TvkMFSetValueCommand.h"
#include "FieldEditors/TvkMFSwapRowsCommand.h"
#include "FieldEditors/TvkSFSetValueCommand.h"

#include <Inventor/fields/SoFields.h>

namespace {

SoMField* rowsOf(SoField& field)
{
    return static_cast<SoMField*>(&field);
}

void writeNothing(SoField&) {}

std::function<void(SoField&)> write(const char* text)
{
    return [text](SoField& field) { field.set(text); };
}

std::function<void(SoField&)> write1(int row, const char* text)
{
    return [row, text](SoField& field) { rowsOf(field)->set1(row, text); };
}

std::function<TvkCommand*(SoField&)> setValue(const char* previous)
{
    return [previous](SoField& field) {
        SbString text(previous);
        return new TvkSFSetValueCommand(&field, text);
    };
}

std::function<TvkCommand*(SoField&)> setRow(int row, const char* previous)
{
    return [row, previous](SoField& field) {
        SbString text(previous);
        return new TvkMFSetValueCommand(rowsOf(field), row, text);
    };
}

template <class Command>
std::function<TvkCommand*(SoField&)> rows(int first, int second)
{
    return [=](SoField& field) { return new Command(rowsOf(field), first, second); };
}

TvkCommand* setColour(SoField& field)
{
    return new TvkMFSetFieldValueCommand(rowsOf(field), 1);
}

TvkCommand* ignore(SoField& field)
{
    return new TvkFieldIgnoredCommand(&field, true);
}

TvkCommand* regard(SoField& field)
{
    return new TvkFieldIgnoredCommand(&field, false);
}

/** The field that holds the default lives no longer than the command's constructor. */
template <class Field>
std::function<TvkCommand*(SoField&)> setDefault(const char* text)
{
    return [text](SoField& field) {
        Field defaultField;
        defaultField.set(text);
        return new TvkFieldSetDefaultCommand(&field, &defaultField);
    };
}

std::vector<CommandRow> valueRows()
{
    return {
        {"set value, text before given",
         "SFFloat",
         "1",
         write("2.5"),
         setValue("1"),
         "2.5",
         {"2.5", 0},
         {"1", 1},
         {"2.5", 1}},
        {"set value, no text before",
         "SFBool",
         "FALSE",
         write("TRUE"),
         setValue(""),
         "TRUE",
         {"TRUE", 0},
         {"TRUE", 1},
         {"TRUE", 1}},
        {"set row, text before given",
         "MFVec3f",
         "[ 1 2 3, 4 5 6 ]",
         write1(1, "7 8 9"),
         setRow(1, "4 5 6"),
         "[ 1 2 3, 7 8 9 ]",
         {"[ 1 2 3, 7 8 9 ]", 0},
         {"[ 1 2 3, 4 5 6 ]", 1},
         {"[ 1 2 3, 7 8 9 ]", 1}},
        {"set row, no text before",
         "MFInt32",
         "[ 1, 2, 3 ]",
         write1(0, "9"),
         setRow(0, ""),
         "[ 9, 2, 3 ]",
         {"[ 9, 2, 3 ]", 0},
         {"[ 9, 2, 3 ]", 1},
         {"[ 9, 2, 3 ]", 1}},
        {"set colour",
         "MFColor",
         "[ 0 0 0, 1 1 1 ]",
         write1(1, "1 0 0"),
         setColour,
         "[ 0 0 0, 1 0 0 ]",
         {"[ 0 0 0, 1 0 0 ]", 0},
         {"[ 0 0 0, 1 0 0 ]", 1},
         {"[ 0 0 0, 1 0 0 ]", 1}},
    };
}

std::vector<CommandRow> rowCommandRows()
{
    return {
        // A row's text, for each row, stands between the insertion and the summary.
        {"add rows of text",
         "MFString",
         "[ \"a\", \"b\" ]",
         writeNothing,
         rows<TvkMFAddRowsCommand>(1, 2),
         "[ \"a\", \"b\" ]",
         {"[ \"a\", \"\", \"\", \"b\" ]", 4},
         {"[ \"a\", \"b\" ]", 1},
         {"[ \"a\", \"\", \"\", \"b\" ]", 4}},
        // Numbers refuse the empty text, without a notification.
        {"add rows of numbers",
         "MFFloat",
         "[ 1, 2 ]",
         writeNothing,
         rows<TvkMFAddRowsCommand>(0, 1),
         "[ 1, 2 ]",
         {"[ 1, 1, 2 ]", 2},
         {"[ 1, 2 ]", 1},
         {"[ 1, 1, 2 ]", 2}},
        {"delete rows",
         "MFVec2f",
         "[ 0 0, 1 1, 2 2, 3 3 ]",
         writeNothing,
         rows<TvkMFDeleteRowsCommand>(1, 2),
         "[ 0 0, 1 1, 2 2, 3 3 ]",
         {"[ 0 0, 3 3 ]", 1},
         {"[ 0 0, 1 1, 2 2, 3 3 ]", 3},
         {"[ 0 0, 3 3 ]", 1}},
        {"swap rows",
         "MFString",
         "[ \"a\", \"b\", \"c\" ]",
         writeNothing,
         rows<TvkMFSwapRowsCommand>(0, 2),
         "[ \"a\", \"b\", \"c\" ]",
         {"[ \"c\", \"b\", \"a\" ]", 2},
         {"[ \"a\", \"b\", \"c\" ]", 2},
         {"[ \"c\", \"b\", \"a\" ]", 2}},
    };
}

std::vector<CommandRow> ignoreRows()
{
    return {
        {"ignore",
         "SFFloat",
         "1",
         [](SoField& field) { field.setIgnored(TRUE); },
         ignore,
         "1 ignored",
         {"1 ignored", 0},
         {"1", 1},
         {"1 ignored", 1}},
        {"ignore no longer",
         "SFFloat",
         "1",
         [](SoField& field) { field.setIgnored(FALSE); },
         regard,
         "1",
         {"1", 0},
         {"1 ignored", 1},
         {"1", 1}},
    };
}

std::vector<CommandRow> defaultRows()
{
    return {
        {"set default",
         "SFFloat",
         "1",
         write("2"),
         setDefault<SoSFFloat>("2"),
         "2",
         {"2", 1},
         {"2", 1},
         {"2", 1}},
        // A list is set in two notifications by Coin.
        {"set default rows",
         "MFInt32",
         "[ 1, 2 ]",
         write("[ 3, 4, 5 ]"),
         setDefault<SoMFInt32>("[ 3, 4, 5 ]"),
         "[ 3, 4, 5 ]",
         {"[ 3, 4, 5 ]", 2},
         {"[ 3, 4, 5 ]", 2},
         {"[ 3, 4, 5 ]", 2}},
    };
}

} // namespace

const std::vector<CommandRow>& commandRows()
{
    static const std::vector<CommandRow> s_rows = [] {
        std::vector<CommandRow> rows;
        for (const std::vector<CommandRow>& family :
             {valueRows(), rowCommandRows(), ignoreRows(), defaultRows()})
            rows.insert(rows.end(), family.begin(), family.end());
        return rows;
    }();
    return s_rows;
}
