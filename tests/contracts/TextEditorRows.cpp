#include "tests/contracts/EditorRows.h"

#include "FieldEditors/SFWidgets/DvSFBitMaskWidget.h"
#include "FieldEditors/SFWidgets/DvSFBoolWidget.h"
#include "FieldEditors/SFWidgets/DvSFColorWidget.h"
#include "FieldEditors/SFWidgets/DvSFEnumWidget.h"
#include "FieldEditors/SFWidgets/DvSFFilePathStringWidget.h"
#include "FieldEditors/SFWidgets/DvSFImageWidget.h"
#include "FieldEditors/SFWidgets/DvSFLineWidget.h"
#include "FieldEditors/SFWidgets/DvSFNameWidget.h"
#include "FieldEditors/SFWidgets/DvSFStringWidget.h"

#include <QCheckBox>
#include <QComboBox>

namespace {

/** The names of the ticked boxes. */
QString tickedBoxes(const EditorRig& rig)
{
    QStringList names;
    for (const QCheckBox* box : rig.editor.getWidget()->findChildren<QCheckBox*>()) {
        if (box->isVisible() && box->isChecked())
            names << box->objectName();
    }
    return names.join(QLatin1Char('|'));
}

QString pictureSize(const EditorRig& rig)
{
    const QSize size = rig.find<QWidget>("m_imageBox")->maximumSize();
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

QString chosenName(const EditorRig& rig)
{
    return rig.find<QComboBox>("comboBox")->currentText();
}

/** On the box itself: the place to the right of its label is not for clicking. */
QPoint onTheBox(const QCheckBox& box)
{
    return {8, box.height() / 2};
}

/** Not one of those for the field before, which go later. */
QCheckBox* visibleBox(const EditorRig& rig, const char* name)
{
    for (QCheckBox* box : rig.editor.getWidget()->findChildren<QCheckBox*>(name)) {
        if (box->isVisible())
            return box;
    }
    return nullptr;
}

std::function<void(const EditorRig&)> clicking(const char* name)
{
    return [name](const EditorRig& rig) {
        QCheckBox* const box = visibleBox(rig, name);
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, onTheBox(*box));
    };
}

std::function<void(const EditorRig&)> pressing(const char* name)
{
    return [name](const EditorRig& rig) {
        QCheckBox* const box = visibleBox(rig, name);
        QTest::mousePress(box, Qt::LeftButton, Qt::NoModifier, onTheBox(*box));
    };
}

void pressDownKey(const EditorRig& rig)
{
    rig.find<QComboBox>("comboBox")->setFocus();
    QTest::keyClick(rig.find<QComboBox>("comboBox"), Qt::Key_Down);
}

void openList(const EditorRig& rig)
{
    rig.find<QComboBox>("comboBox")->setFocus();
    rig.find<QComboBox>("comboBox")->showPopup();
}

const EditorRow::Beginning s_lineIsModified = {"a line is modified", typing("lineEdit", "x")};

EditorRow bitMaskRow()
{
    return {&makeEditor<DvSFBitMaskWidget>,
            "DvSFBitMaskWidget",
            &SoSFBitMask::getClassTypeId,
            "SFBitMask",
            "sfBitMask",
            "(TOP | BOTTOM)",
            "ALL",
            &tickedBoxes,
            "SIDES",
            "TOP|BOTTOM",
            clicking("TOP"),
            "(SIDES | TOP)",
            "(SIDES | TOP)",
            {{"a box is pressed", pressing("TOP"), false}}};
}

EditorRow booleanRow()
{
    return {&makeEditor<DvSFBoolWidget>,
            "DvSFBoolWidget",
            &SoSFBool::getClassTypeId,
            "SFBool",
            "sfBool",
            "FALSE",
            "FALSE",
            [](const EditorRig& rig) {
                return QString(rig.find<QCheckBox>("m_box")->isChecked() ? "on" : "off");
            },
            "on",
            "off",
            clicking("m_box"),
            "FALSE",
            "FALSE",
            {{"the box is pressed", pressing("m_box"), false}}};
}

EditorRow colorRow()
{
    return {&makeEditor<DvSFColorWidget>,
            "DvSFColorWidget",
            &SoSFColor::getClassTypeId,
            "SFColor",
            "sfColor",
            "1 0 0.5",
            "0.12345678 1e-20 2.3456789",
            showingLines("SFColorLine"),
            "0.25|0.5|0.75",
            "1|0|0.5",
            typingAndReturn("SFColorLine", "1"),
            "1 0.5 0.75",
            "1 0.5 0.75",
            {{"a line is modified", typing("SFColorLine", "0.125")}}};
}

EditorRow enumerationRow()
{
    return {&makeEditor<DvSFEnumWidget>,
            "DvSFEnumWidget",
            &SoSFEnum::getClassTypeId,
            "SFEnum",
            "sfEnum",
            "THIRD",
            "SECOND",
            &chosenName,
            "FIRST",
            "THIRD",
            &pressDownKey,
            "SECOND",
            "SECOND",
            {{"the list is open", &openList, false}}};
}

EditorRow filePathRow()
{
    return {&makeEditor<DvSFFilePathStringWidget>,
            "DvSFFilePathStringWidget",
            &SoSFFilePathString::getClassTypeId,
            "SFFilePathString",
            "sfFilePathString",
            "\"/a b.iv\"",
            "\"gr\xfcn.iv\"",
            showingLines("lineEdit"),
            "scene.iv",
            "/a b.iv",
            typingAndReturn("lineEdit", "other.iv"),
            "\"other.iv\"",
            "\"other.iv\"",
            {s_lineIsModified}};
}

EditorRow imageRow()
{
    return {&makeEditor<DvSFImageWidget>,
            "DvSFImageWidget",
            &SoSFImage::getClassTypeId,
            "SFImage",
            "sfImage",
            "2 1 1 0x10 0x20",
            "1 1 4 0x01020304",
            &pictureSize,
            "0 x 0",
            "2 x 1",
            nullptr,
            nullptr,
            nullptr,
            {}};
}

EditorRow lineRow()
{
    return {&makeEditor<DvSFLineWidget>,
            "DvSFLineWidget",
            &SoSField::getClassTypeId,
            "SField",
            "sfTime",
            "4",
            "1.2345678901234567",
            showingLines("lineEdit"),
            "1.5",
            "4",
            typingAndReturn("lineEdit", "2.5"),
            "2.5",
            "2.5",
            {s_lineIsModified}};
}

EditorRow nameRow()
{
    return {&makeEditor<DvSFNameWidget>,
            "DvSFNameWidget",
            &SoSFName::getClassTypeId,
            "SFName",
            "sfName",
            "\"two words\"",
            "\"gr\xfcn\"",
            showingLines("lineEdit"),
            "name",
            "two words",
            typingAndReturn("lineEdit", "other"),
            "\"other\"",
            "\"other\"",
            {s_lineIsModified}};
}

EditorRow stringRow()
{
    return {&makeEditor<DvSFStringWidget>,
            "DvSFStringWidget",
            &SoSFString::getClassTypeId,
            "SFString",
            "sfString",
            "\"two words\"",
            "\"gr\xfcn\"",
            showingLines("lineEdit"),
            "text",
            "two words",
            typingAndReturn("lineEdit", "other"),
            "\"other\"",
            "\"other\"",
            {s_lineIsModified}};
}

} // namespace

std::vector<EditorRow> textEditorRows()
{
    return {bitMaskRow(), booleanRow(), colorRow(), enumerationRow(), filePathRow(),
            imageRow(),   lineRow(),    nameRow(),  stringRow()};
}
