#include "tests/contracts/EditorRows.h"
#include "tests/support/ThumbDrag.h"

#include "FieldEditors/SFWidgets/DvSFBox3sWidget.h"
#include "FieldEditors/SFWidgets/DvSFDoubleWidget.h"
#include "FieldEditors/SFWidgets/DvSFFloatWidget.h"
#include "FieldEditors/SFWidgets/DvSFInt32Widget.h"
#include "FieldEditors/SFWidgets/DvSFMatrixWidget.h"
#include "FieldEditors/SFWidgets/DvSFPlaneWidget.h"
#include "FieldEditors/SFWidgets/DvSFRotationWidget.h"
#include "FieldEditors/SFWidgets/DvSFShortWidget.h"
#include "FieldEditors/SFWidgets/DvSFUInt32Widget.h"
#include "FieldEditors/SFWidgets/DvSFUShortWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec2fWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec2i32Widget.h"
#include "FieldEditors/SFWidgets/DvSFVec2sWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec3fWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec4fWidget.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

namespace {

template <class Control>
Control* control(const EditorRig& rig)
{
    return rig.editor.getWidget()->findChild<Control*>();
}

void pressThumb(const EditorRig& rig)
{
    ThumbDrag(control<QSlider>(rig)).press();
}

/** One drag to the end of the range that commits once: on release. */
void dragToTheEnd(const EditorRig& rig)
{
    control<QCheckBox>(rig)->click();
    ThumbDrag drag(control<QSlider>(rig));
    drag.press();
    drag.moveBy(10000);
    drag.release();
}

const std::vector<EditorRow::Beginning> s_sliderBeginnings = {
    {"a line is modified", typing("lineEdit", "3")},
    {"the thumb is pressed", &pressThumb, false},
};

struct SliderTexts
{
    const char* rough;
    const char* shownAtFirst;
    const char* shownOutside;
    const char* afterDrag;
    const char* atFirst;
};

template <class Editor>
EditorRow sliderRow(const char* name, SoType (*handledType)(), const char* label, const char* field,
                    const SliderTexts& texts)
{
    return {&makeEditor<Editor>,
            name,
            handledType,
            label,
            field,
            "4",
            texts.rough,
            showingLines("lineEdit"),
            texts.shownAtFirst,
            texts.shownOutside,
            &dragToTheEnd,
            texts.afterDrag,
            texts.atFirst,
            s_sliderBeginnings};
}

std::vector<EditorRow> sliderRows()
{
    const SliderTexts integers = {"4711", "7", "4", "100", "7"};
    const SliderTexts unsignedIntegers = {"4711", "7", "4", "0x64", "0x7"}; // as Coin writes them
    return {
        sliderRow<DvSFFloatWidget>("DvSFFloatWidget", &SoSFFloat::getClassTypeId, "SFFloat",
                                   "sfFloat", {"1e-07", "1.500000", "4.000000", "10", "1.5"}),
        sliderRow<DvSFDoubleWidget>("DvSFDoubleWidget", &SoSFDouble::getClassTypeId, "SFDouble",
                                    "sfDouble", {"0.30000000000000004", "1.5", "4", "10", "1.5"}),
        sliderRow<DvSFInt32Widget>("DvSFInt32Widget", &SoSFInt32::getClassTypeId, "SFInt32",
                                   "sfInt32", integers),
        sliderRow<DvSFUInt32Widget>("DvSFUInt32Widget", &SoSFUInt32::getClassTypeId, "SFUInt32",
                                    "sfUInt32", unsignedIntegers),
        sliderRow<DvSFShortWidget>("DvSFShortWidget", &SoSFShort::getClassTypeId, "SFShort",
                                   "sfShort", integers),
        sliderRow<DvSFUShortWidget>("DvSFUShortWidget", &SoSFUShort::getClassTypeId, "SFUShort",
                                    "sfUShort", unsignedIntegers),
    };
}

/** An editor of labelled lines, and what happens when a number is typed into one of them. */
struct LinesCase
{
    const char* line; ///< the name that its lines share
    const char* outside;
    const char* rough;
    const char* shownAtFirst;
    const char* shownOutside;
    int typedInto;
    const char* typed;
    const char* afterTyping;
};

template <class Editor>
EditorRow linesRow(const char* name, SoType (*handledType)(), const char* label, const char* field,
                   const LinesCase& lines)
{
    return {&makeEditor<Editor>,
            name,
            handledType,
            label,
            field,
            lines.outside,
            lines.rough,
            showingLines(lines.line),
            lines.shownAtFirst,
            lines.shownOutside,
            typingAndReturn(lines.line, lines.typed, lines.typedInto),
            lines.afterTyping,
            lines.afterTyping,
            {{"a line is modified", typing(lines.line, "7")}}};
}

std::vector<EditorRow> lineRows()
{
    return {
        linesRow<DvSFVec2fWidget>(
            "DvSFVec2fWidget", &SoSFVec2f::getClassTypeId, "SFVec2f", "sfVec2f",
            {"SFVec2fLine", "4 5", "0.333333343 1.23456788", "1|2", "4|5", 0, "9", "9 2"}),
        linesRow<DvSFVec3fWidget>("DvSFVec3fWidget", &SoSFVec3f::getClassTypeId, "SFVec3f",
                                  "sfVec3f",
                                  {"SFVec3fLine", "4 5 6", "0.333333343 1.23456788 1e-07", "1|2|3",
                                   "4|5|6", 0, "9", "9 2 3"}),
        linesRow<DvSFVec4fWidget>("DvSFVec4fWidget", &SoSFVec4f::getClassTypeId, "SFVec4f",
                                  "sfVec4f",
                                  {"SF4fine", "4 5 6 7", "0.333333343 1.23456788 1e-07 16777215",
                                   "1|2|3|4", "4|5|6|7", 0, "9", "9 2 3 4"}),
        linesRow<DvSFPlaneWidget>(
            "DvSFPlaneWidget", &SoSFPlane::getClassTypeId, "SFPlane", "sfPlane",
            {"SF4fine", "1 0 0 5", "0.267261237 0.534522474 0.80178374 1.23456788", "0|1|0|2",
             "1|0|0|5", 3, "9", "0 1 0 9"}),
        linesRow<DvSFRotationWidget>(
            "DvSFRotationWidget", &SoSFRotation::getClassTypeId, "SFRotation", "sfRotation",
            {"SF4fine", "0 1 0  1.5", "0.267261237 0.534522474 0.80178374  1.23456788", "0|0|1|1.5",
             "0|1|0|1.5", 3, "1", "0 0 1 1"}),
    };
}

QString spinBoxes(const EditorRig& rig)
{
    return rig.find<QSpinBox>("SF2SpinBox", 0)->text() + QLatin1Char('|') +
           rig.find<QSpinBox>("SF2SpinBox", 1)->text();
}

void stepUp(const EditorRig& rig)
{
    rig.find<QSpinBox>("SF2SpinBox")->setFocus();
    QTest::keyClick(rig.find<QSpinBox>("SF2SpinBox"), Qt::Key_Up);
}

void typeIntoTheSpinBox(const EditorRig& rig)
{
    EditorRig::type(rig.find<QSpinBox>("SF2SpinBox")->findChild<QLineEdit*>(), "77");
}

std::vector<EditorRow> spinBoxRows()
{
    const std::vector<EditorRow::Beginning> beginnings = {
        {"a number is being typed", &typeIntoTheSpinBox}};
    return {
        {&makeEditor<DvSFVec2sWidget>, "DvSFVec2sWidget", &SoSFVec2s::getClassTypeId, "SFVec2s",
         "sfVec2s", "4 5", "-32768 32767", &spinBoxes, "1|2", "4|5", &stepUp, "2 2", "2 2",
         beginnings},
        {&makeEditor<DvSFVec2i32Widget>, "DvSFVec2i32Widget", &SoSFVec2i32::getClassTypeId,
         "SFVec2i32", "sfVec2i32", "4 5", "-2147483648 2147483647", &spinBoxes, "1|2", "4|5",
         &stepUp, "2 2", "2 2", beginnings},
    };
}

void openPopup(const EditorRig& rig)
{
    QTest::mouseClick(rig.find<QPushButton>("m_editButton"), Qt::LeftButton);
}

void typeIntoThePopup(const EditorRig& rig)
{
    openPopup(rig);
    EditorRig::type(rig.find<QLineEdit>("m_popupLine"), "-9");
}

std::vector<EditorRow> popupRows()
{
    const std::vector<EditorRow::Beginning> beginnings = {
        {"the line is modified", typing("lineEdit", "7")},
        {"the pop-up is open", &openPopup},
        {"a line of the pop-up is modified", &typeIntoThePopup}};
    const auto act = [](const EditorRig& rig) {
        typeIntoThePopup(rig);
        QTest::keyClick(rig.find<QLineEdit>("m_popupLine"), Qt::Key_Return);
    };
    return {
        {&makeEditor<DvSFBox3sWidget>, "DvSFBox3sWidget", &SoSFBox3s::getClassTypeId, "SFBox3s",
         "sfBox3s", "0 0 0 1 2 3", "-32768 -32768 -32768 32767 32767 32767",
         showingLines("m_popupLine"), "-1|-2|-3|4|5|6", "0|0|0|1|2|3", act, "-9 -2 -3 4 5 6",
         "-9 -2 -3 4 5 6", beginnings},
        {&makeEditor<DvSFMatrixWidget>, "DvSFMatrixWidget", &SoSFMatrix::getClassTypeId, "SFMatrix",
         "sfMatrix", "2 0 0 0 0 2 0 0 0 0 2 0 0 0 0 1",
         "0.333333343 0 0 0 0 1.23456788 0 0 0 0 1e-07 0 0 0 0 1", showingLines("m_popupLine"),
         "1|0|0|0|0|1|0|0|0|0|1|0|0|0|0|1", "2|0|0|0|0|2|0|0|0|0|2|0|0|0|0|1", act,
         "-9 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1", "-9 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1", beginnings},
    };
}

} // namespace

std::vector<EditorRow> numberEditorRows()
{
    std::vector<EditorRow> rows;
    for (const std::vector<EditorRow>& family :
         {sliderRows(), lineRows(), spinBoxRows(), popupRows()})
        rows.insert(rows.end(), family.begin(), family.end());
    return rows;
}
