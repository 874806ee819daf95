#include "tests/support/LineChecks.h"
#include "tests/support/TestMain.h"
#include "tests/support/UserInput.h"

#include "FieldEditors/SFWidgets/DvSFStringWidget.h"

class tst_DvSFStringWidget : public QObject
{
    Q_OBJECT

private:
    static QLineEdit* line(const EditorRig& rig) { return rig.find<QLineEdit>("lineEdit"); }

    static QByteArray bytes(const EditorRig& rig)
    {
        const SbString value = rig.node->sfString.getValue();
        return QByteArray(value.getString(), value.getLength());
    }

    static void show(const EditorRig& rig, const QByteArray& value)
    {
        rig.node->sfString.setValue(value.constData());
        EditorRig::runSensors();
    }

    /** Texts that are easily lost on their way. */
    static void addTexts()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("words") << QByteArray("two words");
        QTest::newRow("blanks") << QByteArray("  \t ");
        QTest::newRow("quotes") << QByteArray("say \"hello\"");
        QTest::newRow("one quote") << QByteArray("\"");
        QTest::newRow("backslash at the end") << QByteArray("C:\\");
        QTest::newRow("backslashes and quotes") << QByteArray("\\\"\\\\\"");
        QTest::newRow("quote before a line break") << QByteArray("a\"\nb");
        QTest::newRow("line breaks") << QByteArray("one\ntwo\r\nthree\n");
        QTest::newRow("number sign") << QByteArray("# no comment");
        QTest::newRow("UTF-8") << QByteArray("gr\xc3\xbcn \xe2\x82\xac");
        QTest::newRow("beyond the first 65536") << QByteArray("\xf0\x9d\x84\x9e clef");
        QTest::newRow("Latin-1") << QByteArray("gr\xfcn");
        QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf"
                                                       "a");
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void showsThePlainTextFromItsStart()
    {
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        show(rig, "say \"hello\"");
        QCOMPARE(line(rig)->text(), QStringLiteral("say \"hello\""));
        QCOMPARE(line(rig)->cursorPosition(), 0);
        show(rig, "gr\xfcn");
        QCOMPARE(line(rig)->text(), QStringLiteral(u"gr\u00fcn"));
    }

    void visitingAndLeavingKeepsEveryByteAndCommitsNothing_data() { addTexts(); }
    void visitingAndLeavingKeepsEveryByteAndCommitsNothing()
    {
        QFETCH(QByteArray, text);
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        show(rig, text);
        QTest::mouseClick(line(rig), Qt::LeftButton);
        line(rig)->setFocus();
        rig.leave();
        line(rig)->setFocus();
        QTest::keyClick(line(rig), Qt::Key_Return);
        rig.leave();
        QCOMPARE(bytes(rig), text);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void typingAtTheEndKeepsTheRest_data() { addTexts(); }
    void typingAtTheEndKeepsTheRest()
    {
        QFETCH(QByteArray, text);
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        show(rig, text);
        const QString shown = line(rig)->text();
        line(rig)->setFocus();
        QTest::keyClick(line(rig), Qt::Key_End);
        QTest::keyClicks(line(rig), "x");
        QTest::keyClick(line(rig), Qt::Key_Return);
        QCOMPARE(bytes(rig), (shown + 'x').toUtf8());
        QCOMPARE(rig.host.services.count(), 1);
    }

    void undoAndRedoWriteTheTextAsItIs_data() { addTexts(); }
    void undoAndRedoWriteTheTextAsItIs()
    {
        QFETCH(QByteArray, text);
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        show(rig, "before");
        enterText(*line(rig), QString::fromUtf8(text));
        QTest::keyClick(line(rig), Qt::Key_Return);
        const QByteArray committed = QString::fromUtf8(text).toUtf8();
        QCOMPARE(bytes(rig), committed);
        rig.host.services.undo(0);
        QCOMPARE(bytes(rig), committed); // no previous text is kept
        show(rig, "between");
        rig.host.services.redo(0);
        QCOMPARE(bytes(rig), committed);
    }

    void keepsTheNewTextWhenUndone()
    {
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        LineChecks::keepsTheNewValueWhenUndone(rig, line(rig), QStringLiteral("after"));
    }

    void theLineBreaksStayWhenAnotherPartIsEdited()
    {
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        show(rig, "one\ntwo\nthree");
        line(rig)->setFocus();
        line(rig)->setCursorPosition(5);
        QTest::keyClick(line(rig), Qt::Key_Delete);
        QTest::keyClicks(line(rig), "W");
        rig.leave();
        QCOMPARE(bytes(rig), QByteArray("one\ntWo\nthree"));
    }

    void returnAndLeavingCommitOnce()
    {
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        EditorRig::type(line(rig), "new");
        QCOMPARE(bytes(rig), QByteArray("text")); // typing alone writes nothing
        QVERIFY(editor.hasPendingEdit());
        QTest::keyClick(line(rig), Qt::Key_Return);
        QCOMPARE(bytes(rig), QByteArray("new"));
        rig.leave(); // before the field's change has been told to anybody
        QCOMPARE(rig.host.services.count(), 1);
        EditorRig::runSensors();
        line(rig)->setFocus();
        rig.leave();
        QCOMPARE(rig.host.services.count(), 1);
    }

    void leavingCommitsWhatWasTyped()
    {
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        EditorRig::type(line(rig), "new");
        rig.leave();
        QCOMPARE(bytes(rig), QByteArray("new"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void theTextCanBeEmptied()
    {
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        EditorRig::type(line(rig), "");
        QTest::keyClick(line(rig), Qt::Key_Return);
        QCOMPARE(bytes(rig), QByteArray());
        QCOMPARE(rig.host.services.count(), 1);
        rig.host.services.redo(0);
        QCOMPARE(bytes(rig), QByteArray());
    }

    void escapeShowsTheFieldsTextAgain()
    {
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        EditorRig::type(line(rig), "wrong");
        QTest::keyClick(line(rig), Qt::Key_Escape);
        QCOMPARE(line(rig)->text(), QStringLiteral("text"));
        rig.leave();
        QCOMPARE(bytes(rig), QByteArray("text"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void anOutsideChangeIsNotOverwrittenByLeaving()
    {
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        line(rig)->setFocus();
        rig.node->sfString = "outside";
        rig.leave(); // the line shows the former text still
        QCOMPARE(bytes(rig), QByteArray("outside"));
        QCOMPARE(rig.host.services.count(), 0);
        EditorRig::runSensors();
        QCOMPARE(line(rig)->text(), QStringLiteral("outside"));
    }

    void aTextSetByAProgramIsCommitted()
    {
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        line(rig)->setText(QStringLiteral("set"));
        editor.setCommandValue();
        QCOMPARE(bytes(rig), QByteArray("set"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void aHundredThousandCharactersAreShownAndKept()
    {
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        const QByteArray text = QByteArray("0123456789").repeated(10000);
        show(rig, text);
        QCOMPARE(line(rig)->text().size(), 100000);
        line(rig)->setFocus();
        QTest::keyClick(line(rig), Qt::Key_End);
        QTest::keyClicks(line(rig), "x");
        QTest::keyClick(line(rig), Qt::Key_Return);
        QCOMPARE(bytes(rig), text + 'x');
    }

    void charactersBeyondTheFirst65536AreEntered()
    {
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        enterText(*line(rig), QStringLiteral(u"\U0001d11e\U0001f600"));
        QTest::keyClick(line(rig), Qt::Key_Backspace); // a whole character
        QTest::keyClick(line(rig), Qt::Key_Return);
        QCOMPARE(bytes(rig), QByteArray("\xf0\x9d\x84\x9e"));
    }

    void whatIsBeingTypedIsCommittedToItsOwnFieldWhenAnotherIsSelected()
    {
        DvSFStringWidget editor;
        EditorRig rig(editor, "sfString");
        auto* const second = new SoEveryField;
        second->ref();
        EditorRig::type(line(rig), "mine");
        rig.edit(second->sfString);
        QCOMPARE(bytes(rig), QByteArray("mine"));
        QCOMPARE(second->sfString.getValue().getString(), "text");
        QCOMPARE(line(rig)->text(), QStringLiteral("text"));
        QCOMPARE(rig.host.services.count(), 1);
        second->unref();
    }
};

TAVRIK_TEST_MAIN(tst_DvSFStringWidget)
#include "tst_DvSFStringWidget.moc"
