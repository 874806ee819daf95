#pragma once

#include "tests/support/EditorRig.h"

#include <functional>
#include <memory>
#include <vector>

/** What every single-value editor promises, filled in for one of them. */
struct EditorRow
{
    /** Something that the user has begun and not ended, such as "a line is modified". */
    struct Beginning
    {
        const char* name;
        std::function<void(const EditorRig&)> begin;
        bool escapeReverts = true; ///< Escape takes it back; false where nothing shows anything new
    };

    std::function<std::unique_ptr<DvSFieldWidget>()> make;
    const char* name; ///< the editor's object name
    SoType (*handledType)();
    const char* label;
    const char* field;   ///< of SoEveryField
    const char* outside; ///< another text for the field
    /** A value that the widgets cannot show to the last bit, where there is one; else as outside.
     */
    const char* rough;
    /** What the widgets show, as one text. */
    std::function<QString(const EditorRig&)> shown;
    const char* shownAtFirst;
    const char* shownOutside;
    /** One action of the user's that commits; null for a type that is only shown. */
    std::function<void(const EditorRig&)> act;
    const char* afterAct;  ///< the field's text
    const char* afterUndo; ///< the same as afterAct where no previous text is kept
    std::vector<Beginning> beginnings;
};

/** One file a family; the suite runs over all of them. */
std::vector<EditorRow> numberEditorRows();
std::vector<EditorRow> textEditorRows();

// What the rows are written with.

template <class Editor>
std::unique_ptr<DvSFieldWidget> makeEditor()
{
    return std::make_unique<Editor>();
}

/** The texts of all lines of that name. */
inline QString linesOf(const EditorRig& rig, const char* name)
{
    QStringList texts;
    for (const QLineEdit* line : rig.editor.getWidget()->findChildren<QLineEdit*>(name))
        texts << line->text();
    return texts.join(QLatin1Char('|'));
}

inline std::function<QString(const EditorRig&)> showingLines(const char* name)
{
    return [name](const EditorRig& rig) { return linesOf(rig, name); };
}

/** Types into one of the lines of that name, without an end. */
inline std::function<void(const EditorRig&)> typing(const char* name, const char* text,
                                                    int index = 0)
{
    return [=](const EditorRig& rig) {
        EditorRig::type(rig.find<QLineEdit>(name, index), QString::fromLatin1(text));
    };
}

inline std::function<void(const EditorRig&)> typingAndReturn(const char* name, const char* text,
                                                             int index = 0)
{
    return [=](const EditorRig& rig) {
        typing(name, text, index)(rig);
        QTest::keyClick(rig.find<QLineEdit>(name, index), Qt::Key_Return);
    };
}
