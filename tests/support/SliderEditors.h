#pragma once

#include "tests/support/EditorRig.h"
#include "tests/support/ThumbDrag.h"

#include "FieldEditors/DvIntSlider.h"
#include "FieldEditors/DvRealSlider.h"
#include "FieldEditors/DvUIntSlider.h"
#include "FieldEditors/SFWidgets/DvSFDoubleWidget.h"
#include "FieldEditors/SFWidgets/DvSFFloatWidget.h"
#include "FieldEditors/SFWidgets/DvSFInt32Widget.h"
#include "FieldEditors/SFWidgets/DvSFShortWidget.h"
#include "FieldEditors/SFWidgets/DvSFUInt32Widget.h"
#include "FieldEditors/SFWidgets/DvSFUShortWidget.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QSlider>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

/** One of the six editors with a slider, and the field of SoEveryField that it is tested on. */
struct SliderEditor
{
    const char* name;
    std::unique_ptr<DvSFieldWidget> (*make)();
    const char* field;
    bool isReal;
};

/** The six, as rows of a test. */
class SliderEditors
{
public:
    static const std::vector<SliderEditor>& all()
    {
        static const std::vector<SliderEditor> s_all = {
            {"float", &make<DvSFFloatWidget>, "sfFloat", true},
            {"double", &make<DvSFDoubleWidget>, "sfDouble", true},
            {"int32", &make<DvSFInt32Widget>, "sfInt32", false},
            {"uint32", &make<DvSFUInt32Widget>, "sfUInt32", false},
            {"short", &make<DvSFShortWidget>, "sfShort", false},
            {"ushort", &make<DvSFUShortWidget>, "sfUShort", false},
        };
        return s_all;
    }

    static void addRows()
    {
        QTest::addColumn<int>("kind");
        int number = 0;
        for (const SliderEditor& editor : all())
            QTest::newRow(editor.name) << number++;
    }

    static const SliderEditor& fetchRow()
    {
        QFETCH(int, kind);
        return all()[static_cast<std::size_t>(kind)];
    }

private:
    template <class Editor>
    static std::unique_ptr<DvSFieldWidget> make()
    {
        return std::make_unique<Editor>();
    }
};

/** A node for as long as the test needs it. */
template <class Node>
struct OwnedNode
{
    OwnedNode() { node->ref(); }
    ~OwnedNode() { node->unref(); }
    OwnedNode(const OwnedNode&) = delete;
    OwnedNode& operator=(const OwnedNode&) = delete;
    Node* node = new Node;
};

inline QLineEdit* lineOf(const EditorRig& rig)
{
    return rig.find<QLineEdit>("lineEdit");
}

inline QSlider* thumbOf(const EditorRig& rig)
{
    return rig.editor.getWidget()->findChild<QSlider*>();
}

inline QCheckBox* liveBoxOf(const EditorRig& rig)
{
    return rig.editor.getWidget()->findChild<QCheckBox*>();
}

template <class Slider>
const Slider& sliderOf(const DvSFieldWidget& editor)
{
    return *editor.getWidget()->findChild<Slider*>();
}

/** Types a number and presses Return. */
inline void enterNumber(const EditorRig& rig, const QString& text)
{
    EditorRig::type(lineOf(rig), text);
    QTest::keyClick(lineOf(rig), Qt::Key_Return);
    EditorRig::runSensors();
}

inline void dragThumb(const EditorRig& rig, int pixels)
{
    ThumbDrag hand(thumbOf(rig));
    hand.press();
    hand.moveBy(pixels);
    hand.release();
}

inline void undoAll(const EditorRig& rig)
{
    for (int i = rig.host.services.count(); i-- > 0;)
        rig.host.services.undo(i);
}

/** Into every number field, through the typed setters: Coin does not read all that it writes. */
inline void setNumbers(const EditorRig& rig, double value)
{
    rig.node->sfFloat.setValue(static_cast<float>(value));
    rig.node->sfDouble.setValue(value);
    if (!std::isfinite(value))
        return;
    const auto whole = static_cast<qint64>(std::clamp(value, -2147483648.0, 4294967295.0));
    rig.node->sfInt32.setValue(static_cast<int32_t>(whole));
    rig.node->sfUInt32.setValue(static_cast<uint32_t>(whole));
    rig.node->sfShort.setValue(static_cast<short>(whole));
    rig.node->sfUShort.setValue(static_cast<unsigned short>(whole));
}
