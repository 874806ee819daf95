#include "tests/contracts/TableRows.h"
#include "tests/support/ThumbDrag.h"

#include "FieldEditors/MFWidgets/DvMFDoubleWidget.h"
#include "FieldEditors/MFWidgets/DvMFFloatWidget.h"
#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFShortWidget.h"
#include "FieldEditors/MFWidgets/DvMFUInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFUShortWidget.h"

#include <Inventor/fields/SoFields.h>

#include <QSlider>

namespace {

void pressThumb(const TableRig& rig)
{
    QWidget* const slider = rig.openCell(1, 0);
    ThumbDrag(slider->findChild<QSlider*>()).press();
}

std::vector<TableRow::Beginning> sliderBeginnings()
{
    return {
        aCellIsOpen(0),
        aCellIsModified(0, "6"),
        {"the thumb is pressed", &pressThumb, false},
    };
}

const char* const s_outsideTexts = "[4, 5, 6, 7]";
const QStringList s_reals = {"1.5", "2.5", "3.5"};
const QStringList s_integers = {"1", "2", "3"};
const QStringList s_outside = {"4", "5", "6", "7"};
// As Coin writes unsigned numbers.
const QStringList s_hexadecimals = {"0x1", "0x2", "0x3"};
const QStringList s_outsideHexadecimals = {"0x4", "0x5", "0x6", "0x7"};

template <class Editor, class Field>
TableRow row(const char* name, const char* label, const char* field, int kind)
{
    TableRow row;
    row.make = &makeTableEditor<Editor>;
    row.name = name;
    row.handledType = &Field::getClassTypeId;
    row.label = label;
    row.field = field;
    row.headers = QStringList{"Value"};
    row.valueKind = kind;
    row.shownAtFirst = s_integers;
    row.outside = s_outsideTexts;
    row.shownOutside = s_outside;
    row.rough = "[4711, 123456]";
    row.edit = {enteringIntoCell(0, "6"), "6", 0};
    row.emptyRow = "0";
    row.copiesWhenAdding = true;
    row.swapsByCommand = true;
    row.beginnings = sliderBeginnings();
    return row;
}

TableRow showingReals(TableRow row)
{
    row.shownAtFirst = s_reals;
    row.rough = "[1e-07, 0.30000001]";
    return row;
}

TableRow showingHexadecimals(TableRow row)
{
    row.shownAtFirst = s_hexadecimals;
    row.shownOutside = s_outsideHexadecimals;
    row.edit.rowAfter = "0x6";
    row.emptyRow = "0x0";
    return row;
}

/** The one type of number without a slider in its cells. */
TableRow doubleRow()
{
    TableRow made = showingReals(row<DvMFDoubleWidget, SoMFDouble>(
        "DvMFDoubleWidget", "MFDouble", "mfDouble", DvMFieldTableItemDelegate::DoubleKind));
    made.rough = "[0.30000000000000004, 1.7976931348623157e+308]";
    made.beginnings = {aCellIsOpen(0), aCellIsModified(0, "6")};
    return made;
}

} // namespace

std::vector<TableRow> numberTableRows()
{
    using Delegate = DvMFieldTableItemDelegate;
    TableRow smallNumbers = row<DvMFShortWidget, SoMFShort>("DvMFShortWidget", "MFShort", "mfShort",
                                                            Delegate::ShortKind);
    smallNumbers.rough = "[4711, -32768]";
    return {
        showingReals(row<DvMFFloatWidget, SoMFFloat>("DvMFFloatWidget", "MFFloat", "mfFloat",
                                                     Delegate::FloatKind)),
        doubleRow(),
        row<DvMFInt32Widget, SoMFInt32>("DvMFInt32Widget", "MFInt32", "mfInt32",
                                        Delegate::Int32Kind),
        smallNumbers,
        showingHexadecimals(row<DvMFUInt32Widget, SoMFUInt32>("DvMFUInt32Widget", "MFUInt32",
                                                              "mfUInt32", Delegate::UInt32Kind)),
        showingHexadecimals(row<DvMFUShortWidget, SoMFUShort>("DvMFUShortWidget", "MFUShort",
                                                              "mfUShort", Delegate::UShortKind)),
    };
}
