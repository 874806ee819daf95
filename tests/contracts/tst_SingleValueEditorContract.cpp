#include "tests/support/EditorRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFBoolWidget.h"
#include "FieldEditors/SFWidgets/DvSFLineWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec3fWidget.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <functional>

namespace {

/** What every single-value editor promises, filled in for one of them. */
struct Row
{
    std::function<std::unique_ptr<DvSFieldWidget>()> make;
    const char* name; ///< the editor's object name
    SoType (*handledType)();
    const char* label;
    const char* field;   ///< of SoEveryField
    const char* outside; ///< another text for the field
    /** What the widgets show, as one text. */
    std::function<QString(const EditorRig&)> shown;
    const char* shownAtFirst;
    const char* shownOutside;
    /** One action of the user's that commits. */
    std::function<void(const EditorRig&)> act;
    const char* afterAct; ///< the field's text
    /** The user's typing without a commit; null where the editor has none. */
    std::function<void(const EditorRig&)> begin;
};

QString lines(const EditorRig& rig, const char* name)
{
    QStringList texts;
    for (const QLineEdit* line : rig.editor.getWidget()->findChildren<QLineEdit*>(name))
        texts << line->text();
    return texts.join(QLatin1Char('|'));
}

template <class Editor>
std::unique_ptr<DvSFieldWidget> make()
{
    return std::make_unique<Editor>();
}

void typeAndReturn(const EditorRig& rig, const char* name, const char* text)
{
    EditorRig::type(rig.find<QLineEdit>(name), QString::fromLatin1(text));
    QTest::keyClick(rig.find<QLineEdit>(name), Qt::Key_Return);
}

const Row s_rows[] = {
    {&make<DvSFBoolWidget>, "DvSFBoolWidget", &SoSFBool::getClassTypeId, "SFBool", "sfBool",
     "FALSE",
     [](const EditorRig& r) {
         return QString(r.find<QCheckBox>("m_box")->isChecked() ? "on" : "off");
     },
     "on", "off",
     [](const EditorRig& r) { QTest::mouseClick(r.find<QCheckBox>("m_box"), Qt::LeftButton); },
     "FALSE", nullptr},
    {&make<DvSFLineWidget>, "DvSFLineWidget", &SoSField::getClassTypeId, "SField", "sfTime", "4",
     [](const EditorRig& r) { return lines(r, "lineEdit"); }, "1.5", "4",
     [](const EditorRig& r) { typeAndReturn(r, "lineEdit", "2.5"); }, "2.5",
     [](const EditorRig& r) { EditorRig::type(r.find<QLineEdit>("lineEdit"), "x"); }},
    {&make<DvSFVec3fWidget>, "DvSFVec3fWidget", &SoSFVec3f::getClassTypeId, "SFVec3f", "sfVec3f",
     "4 5 6", [](const EditorRig& r) { return lines(r, "SFVec3fLine"); }, "1|2|3", "4|5|6",
     [](const EditorRig& r) { typeAndReturn(r, "SFVec3fLine", "9"); }, "9 2 3",
     [](const EditorRig& r) { EditorRig::type(r.find<QLineEdit>("SFVec3fLine"), "7"); }},
};

} // namespace

class tst_SingleValueEditorContract : public QObject
{
    Q_OBJECT

private:
    static void addRows()
    {
        QTest::addColumn<int>("row");
        int number = 0;
        for (const Row& row : s_rows)
            QTest::newRow(row.name) << number++;
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void tellsWhoItIsAndWhatItHandles_data() { addRows(); }
    void tellsWhoItIsAndWhatItHandles()
    {
        QFETCH(int, row);
        const Row& r = s_rows[row];
        const auto editor = r.make();
        QCOMPARE(editor->objectName(), QString(r.name));
        QCOMPARE(editor->metaObject()->className(), r.name);
        QCOMPARE(editor->getName().getString(), r.name);
        QVERIFY(editor->getHandledType() == r.handledType());
        EditorRig rig(*editor, r.field);
        QCOMPARE(rig.find<QLabel>("m_label")->text(),
                 QStringLiteral("<p align=\"center\">%1</p>").arg(QLatin1String(r.label)));
    }

    void showsTheFieldAndPushesNothing_data() { addRows(); }
    void showsTheFieldAndPushesNothing()
    {
        QFETCH(int, row);
        const Row& r = s_rows[row];
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        const QString before = rig.text();
        QCOMPARE(r.shown(rig), QString(r.shownAtFirst));
        editor->refresh();
        rig.leave();
        EditorRig::runSensors();
        QCOMPARE(rig.text(), before);
        QCOMPARE(rig.host.services.count(), 0);
        QVERIFY(!editor->hasPendingEdit());
    }

    void anOutsideChangeIsShown_data() { addRows(); }
    void anOutsideChangeIsShown()
    {
        QFETCH(int, row);
        const Row& r = s_rows[row];
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        QVERIFY(rig.field->set(r.outside));
        EditorRig::runSensors();
        QCOMPARE(r.shown(rig), QString(r.shownOutside));
        QCOMPARE(rig.text(), QString(r.outside));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void oneActionMakesOneCommandThatUndoAndRedoLeaveInPlace_data() { addRows(); }
    void oneActionMakesOneCommandThatUndoAndRedoLeaveInPlace()
    {
        QFETCH(int, row);
        const Row& r = s_rows[row];
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        r.act(rig);
        QCOMPARE(rig.text(), QString(r.afterAct));
        EditorRig::runSensors();
        rig.leave();
        EditorRig::runSensors();
        QCOMPARE(rig.host.services.count(), 1);
        QCOMPARE(rig.host.services.at(0).getField(), rig.field);
        // None of these carries a previous text, so undoing keeps the new value.
        rig.host.services.undo(0);
        QCOMPARE(rig.text(), QString(r.afterAct));
        rig.host.services.redo(0);
        QCOMPARE(rig.text(), QString(r.afterAct));
    }

    void deactivatingTwiceAndReleasingAtAnyTimeDoNoHarm_data() { addRows(); }
    void deactivatingTwiceAndReleasingAtAnyTimeDoNoHarm()
    {
        QFETCH(int, row);
        const Row& r = s_rows[row];
        r.make()->releaseWidgets();
        const auto editor = r.make();
        editor->deactivate();
        EditorRig rig(*editor, r.field);
        editor->deactivate();
        editor->deactivate();
        QVERIFY(!editor->getWidget()->isVisible());
        editor->releaseWidgets();
        QVERIFY(rig.field->set(r.outside));
        EditorRig::runSensors();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void survivesTheDeathOfTheContainerIdleAndWhileTyping_data() { addRows(); }
    void survivesTheDeathOfTheContainerIdleAndWhileTyping()
    {
        QFETCH(int, row);
        const Row& r = s_rows[row];
        for (const bool typing : {false, true}) {
            const auto editor = r.make();
            EditorRig rig(*editor, r.field);
            if (typing && r.begin)
                r.begin(rig);
            rig.killNode();
            QVERIFY(!editor->getWidget()->isEnabled());
            QVERIFY(!editor->getEditedObject());
            EditorRig::runSensors();
            editor->deactivate();
            QCOMPARE(rig.host.services.count(), 0);
        }
    }

    void theButtonsWork_data() { addRows(); }
    void theButtonsWork()
    {
        QFETCH(int, row);
        const Row& r = s_rows[row];
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        const QString atFirst = rig.text();
        QVERIFY(rig.field->set(r.outside));
        QTest::mouseClick(rig.find<QPushButton>("m_ignoreButton"), Qt::LeftButton);
        QVERIFY(rig.field->isIgnored());
        QTest::mouseClick(rig.find<QPushButton>("m_defaultButton"), Qt::LeftButton);
        QCOMPARE(rig.text(), atFirst);
        QCOMPARE(rig.host.services.count(), 2);
    }

    void everyControlIsReachedByTabAndHasAName_data() { addRows(); }
    void everyControlIsReachedByTabAndHasAName()
    {
        QFETCH(int, row);
        const Row& r = s_rows[row];
        const auto editor = r.make();
        EditorRig rig(*editor, r.field);
        int controls = 0;
        for (QWidget* widget : editor->getWidget()->findChildren<QWidget*>()) {
            if (widget->focusPolicy() & Qt::TabFocus) {
                QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
                ++controls;
            }
        }
        QVERIFY(controls > 0);
    }
};

TAVRIK_TEST_MAIN(tst_SingleValueEditorContract)
#include "tst_SingleValueEditorContract.moc"
