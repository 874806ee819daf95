#include "tests/support/RecordingEditor.h"
#include "tests/support/TestMain.h"

#include <Inventor/nodes/SoCone.h>

/** What an editor has of its base: the object that it edits, its type and its widget. */
class tst_TvkEditor : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_log.clear(); }

    void anEditorHasNoEditedObjectAtFirst();
    void anEditorKeepsItsOwnCopyOfTheHandle();
    void anEditorMayBeGivenItsOwnHandle();
    void aHandleOfNothingIsNoEditedObject();
    void nullTakesTheEditedObjectAway();
    void anEditorAnswersItsHandledType();
    void anEditorWhoseWidgetWasDeletedHasNone();

private:
    QStringList m_log;
};

void tst_TvkEditor::anEditorHasNoEditedObjectAtFirst()
{
    const RecordingEditor editor("editor", SoSFFloat::getClassTypeId(), m_log);
    QCOMPARE(editor.getEditedObject(), nullptr);
}

void tst_TvkEditor::anEditorKeepsItsOwnCopyOfTheHandle()
{
    RecordingEditor editor("editor", SoSFFloat::getClassTypeId(), m_log);
    SoSFFloat field;
    {
        SoTypedObject object(&field);
        editor.setEditedObject(&object);
        QVERIFY(editor.getEditedObject() != &object);
    }
    QVERIFY(editor.getEditedObject());
    QCOMPARE(editor.getEditedObject()->getField(), &field);
}

void tst_TvkEditor::anEditorMayBeGivenItsOwnHandle()
{
    RecordingEditor editor("editor", SoSFFloat::getClassTypeId(), m_log);
    SoSFFloat field;
    SoTypedObject object(&field);
    editor.setEditedObject(&object);
    editor.setEditedObject(editor.getEditedObject());
    QVERIFY(editor.getEditedObject());
    QCOMPARE(editor.getEditedObject()->getField(), &field);
}

void tst_TvkEditor::aHandleOfNothingIsNoEditedObject()
{
    RecordingEditor editor("editor", SoSFFloat::getClassTypeId(), m_log);
    SoTypedObject nothing;
    editor.setEditedObject(&nothing);
    QCOMPARE(editor.getEditedObject(), nullptr);
}

void tst_TvkEditor::nullTakesTheEditedObjectAway()
{
    RecordingEditor editor("editor", SoSFFloat::getClassTypeId(), m_log);
    SoSFFloat field;
    SoTypedObject object(&field);
    editor.setEditedObject(&object);
    editor.setEditedObject(nullptr);
    QCOMPARE(editor.getEditedObject(), nullptr);
}

void tst_TvkEditor::anEditorAnswersItsHandledType()
{
    RecordingEditor editor("editor", SoCone::getClassTypeId(), m_log);
    QVERIFY(editor.getHandledType() == SoCone::getClassTypeId());
}

void tst_TvkEditor::anEditorWhoseWidgetWasDeletedHasNone()
{
    const RecordingEditor editor("editor", SoSFFloat::getClassTypeId(), m_log);
    QVERIFY(editor.getWidget());
    delete editor.getWidget();
    QCOMPARE(editor.getWidget(), nullptr);
}

TAVRIK_TEST_MAIN(tst_TvkEditor)
#include "tst_TvkEditor.moc"
