#include "tests/contracts/TableRows.h"

#include "FieldEditors/MFWidgets/DvMFDefaultFieldWidget.h"
#include "FieldEditors/MFWidgets/DvMFMatrixWidget.h"
#include "FieldEditors/MFWidgets/DvMFStringWidget.h"

#include <QPushButton>

namespace {

void openPopup(const TableRig& rig)
{
    rig.table().setCurrentCell(1, 0);
    rig.click("m_editButton");
}

void typeIntoPopup(const TableRig& rig)
{
    openPopup(rig);
    auto* const line = rig.find<QLineEdit>("m_popupLine");
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, QStringLiteral("9"));
}

void editInPopup(const TableRig& rig)
{
    typeIntoPopup(rig);
    QTest::keyClick(rig.find<QLineEdit>("m_popupLine"), Qt::Key_Return);
    rig.find<QWidget>("m_popupFrame")->hide();
}

TableRow oneColumn(const char* name, const char* label, const char* field)
{
    TableRow row;
    row.name = name;
    row.label = label;
    row.field = field;
    row.headers = QStringList{"Value"};
    row.valueKind = DvMFieldTableItemDelegate::TextKind;
    row.copiesWhenAdding = true;
    row.swapsByCommand = true;
    return row;
}

TableRow stringRow()
{
    TableRow row = oneColumn("DvMFStringWidget", "MFString", "mfString");
    row.make = &makeTableEditor<DvMFStringWidget>;
    row.handledType = &SoMFString::getClassTypeId;
    row.shownAtFirst = QStringList{"one", "two", "three"};
    row.outside = "[\"4\", \"5 6\", \"\", \"7\"]";
    row.shownOutside = QStringList{"4", "5 6", "", "7"};
    row.rough = "[\" a \\\" b\\\\ c\"]";
    row.edit = {enteringIntoCell(0, "2 and more"), "\"2 and more\"", 1};
    row.emptyRow = "\"\"";
    row.copiesWhenAdding = false;
    row.beginnings = {aCellIsOpen(0), aCellIsModified(0, "2 and more")};
    return row;
}

TableRow anyFieldRow()
{
    TableRow row = oneColumn("DvMFDefaultFieldWidget", "MField", "mfTime");
    row.make = &makeTableEditor<DvMFDefaultFieldWidget>;
    row.handledType = &SoMField::getClassTypeId;
    row.shownAtFirst = QStringList{"1.5", "2.5", "3.5"};
    row.outside = "[4, 5, 6, 7]";
    row.shownOutside = QStringList{"4", "5", "6", "7"};
    row.rough = "[0.30000000000000004]";
    row.edit = {enteringIntoCell(0, "6"), "6", 1};
    row.emptyRow = "0";
    row.beginnings = {aCellIsOpen(0), aCellIsModified(0, "6")};
    return row;
}

TableRow matrixRow()
{
    TableRow row = oneColumn("DvMFMatrixWidget", "MFMatrix", "mfMatrix");
    row.make = &makeTableEditor<DvMFMatrixWidget>;
    row.handledType = &SoMFMatrix::getClassTypeId;
    row.shownAtFirst =
        QStringList{"1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16", "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1",
                    "2 0 0 0 0 2 0 0 0 0 2 0 0 0 0 1"};
    row.outside = "[1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1, 2 2 2 2 2 2 2 2 2 2 2 2 2 2 2 2,"
                  " 3 3 3 3 3 3 3 3 3 3 3 3 3 3 3 3, 4 4 4 4 4 4 4 4 4 4 4 4 4 4 4 4]";
    row.shownOutside =
        QStringList{"1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1", "2 2 2 2 2 2 2 2 2 2 2 2 2 2 2 2",
                    "3 3 3 3 3 3 3 3 3 3 3 3 3 3 3 3", "4 4 4 4 4 4 4 4 4 4 4 4 4 4 4 4"};
    row.rough = "[0.333333343 1.23456788 1e-30 4 5 6 7 8 9 10 11 12 13 14 15 16]";
    row.edit = {&editInPopup, "9 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1", 1};
    row.swapsByCommand = false;
    row.emptyRow = "0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0";
    row.beginnings = {{"the pop-up is open", &openPopup, false},
                      {"a line of the pop-up is modified", &typeIntoPopup}};
    return row;
}

} // namespace

std::vector<TableRow> otherTableRows()
{
    return {anyFieldRow(), matrixRow(), stringRow()};
}
