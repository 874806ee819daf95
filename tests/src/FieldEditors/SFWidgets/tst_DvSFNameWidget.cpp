#include "tests/support/EditorRig.h"
#include "tests/support/TestMain.h"
#include "tests/support/UserInput.h"

#include "FieldEditors/SFWidgets/DvSFNameWidget.h"
#include "scenegraph/SoFieldText.h"

class tst_DvSFNameWidget : public QObject
{
    Q_OBJECT

private:
    static QLineEdit* line(const EditorRig& rig) { return rig.find<QLineEdit>("lineEdit"); }

    static QByteArray bytes(const EditorRig& rig)
    {
        return rig.node->sfName.getValue().getString();
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void showsTheNameWithoutTheQuotesOfItsText()
    {
        DvSFNameWidget editor;
        EditorRig rig(editor, "sfName");
        QCOMPARE(line(rig)->text(), QStringLiteral("name"));
        QCOMPARE(rig.text(), QStringLiteral("\"name\""));
    }

    void returnAndLeavingCommitOnce()
    {
        DvSFNameWidget editor;
        EditorRig rig(editor, "sfName");
        EditorRig::type(line(rig), "other");
        QTest::keyClick(line(rig), Qt::Key_Return);
        rig.leave();
        QCOMPARE(bytes(rig), QByteArray("other"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void visitingAndLeavingCommitsNothing()
    {
        DvSFNameWidget editor;
        EditorRig rig(editor, "sfName");
        line(rig)->setFocus();
        rig.leave();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void anythingMayBeAName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("empty") << QString();
        QTest::newRow("blanks") << QStringLiteral("two words ");
        QTest::newRow("digits first") << QStringLiteral("0x1");
        QTest::newRow("quotes and backslash") << QStringLiteral("\"a\"\\");
        QTest::newRow("beyond ASCII") << QStringLiteral(u"gr\u00fcn \U0001d11e");
        QTest::newRow("long") << QString(SoFieldText::longestName, QLatin1Char('n'));
    }

    void anythingMayBeAName()
    {
        QFETCH(QString, name);
        DvSFNameWidget editor;
        EditorRig rig(editor, "sfName");
        enterText(*line(rig), name);
        QTest::keyClick(line(rig), Qt::Key_Return);
        QCOMPARE(bytes(rig), name.toUtf8());
        rig.node->sfName = "between";
        rig.host.services.redo(0);
        EditorRig::runSensors();
        QCOMPARE(bytes(rig), name.toUtf8());
        QCOMPARE(line(rig)->text(), name);
    }

    /** Coin would copy it past the end of its memory for names. */
    void aNameThatCoinCannotHoldIsNotTaken()
    {
        DvSFNameWidget editor;
        EditorRig rig(editor, "sfName");
        enterText(*line(rig), QString(SoFieldText::longestName / 2 + 1, QChar(0xfc)));
        QCOMPARE(line(rig)->text(), QString());
        line(rig)->setText(QString(SoFieldText::longestName + 1, QLatin1Char('n')));
        editor.setCommandValue();
        QCOMPARE(bytes(rig), QByteArray("name"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void anOldNameInLatin1StaysAsItIsUnlessItIsEdited()
    {
        DvSFNameWidget editor;
        EditorRig rig(editor, "sfName");
        rig.node->sfName = "gr\xfcn";
        EditorRig::runSensors();
        QCOMPARE(line(rig)->text(), QStringLiteral(u"gr\u00fcn"));
        line(rig)->setFocus();
        rig.leave();
        QCOMPARE(bytes(rig), QByteArray("gr\xfcn"));
        line(rig)->setFocus();
        QTest::keyClick(line(rig), Qt::Key_End);
        QTest::keyClicks(line(rig), "e");
        rig.leave();
        QCOMPARE(bytes(rig), QByteArray("gr\xc3\xbcne"));
    }

    void keepsTheNewNameWhenUndone()
    {
        DvSFNameWidget editor;
        EditorRig rig(editor, "sfName");
        EditorRig::type(line(rig), "other");
        rig.leave();
        rig.host.services.undo(0);
        QCOMPARE(bytes(rig), QByteArray("other"));
    }
};

TAVRIK_TEST_MAIN(tst_DvSFNameWidget)
#include "tst_DvSFNameWidget.moc"
