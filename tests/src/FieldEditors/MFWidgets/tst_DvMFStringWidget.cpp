#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"
#include "tests/support/UserInput.h"

#include "FieldEditors/MFWidgets/DvMFStringWidget.h"
#include "FieldEditors/TvkMFSetValueCommand.h"
#include "FieldEditors/TvkMFSwapRowsCommand.h"

class tst_DvMFStringWidget : public QObject
{
    Q_OBJECT

private:
    static QByteArray value(const TableRig& rig, int row)
    {
        const SbString& text = rig.node->mfString[row];
        return QByteArray(text.getString(), text.getLength());
    }

    static void setValue(const TableRig& rig, int row, const QByteArray& bytes)
    {
        rig.node->mfString.set1Value(row, SbString(bytes.constData()));
        TableRig::runSensors();
    }

    /** Replaces a cell's text by any other, also one that QTest has no keys for. */
    static void enter(const TableRig& rig, int row, const QString& text)
    {
        rig.openCell(row, 0);
        enterText(*rig.openLine(), text);
        QTest::keyClick(rig.openLine(), Qt::Key_Return);
        TableRig::settle();
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void aTypedTextIsStoredAsItIs_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("spaces and quotes") << QStringLiteral(" a \"b\" 'c' ");
        QTest::newRow("only quotes") << QStringLiteral("\"\"");
        QTest::newRow("backslashes") << QStringLiteral("C:\\new\\table");
        QTest::newRow("a backslash at the end") << QStringLiteral("end\\");
        QTest::newRow("a backslash and a quote") << QStringLiteral("\\\"");
        QTest::newRow("what the file format means") << QStringLiteral("[ a, b ] # { }");
        QTest::newRow("many scripts") << QString::fromUtf8("äß€ Жع ה 中が한 🦜");
        QTest::newRow("100,000 characters") << QString(100000, QLatin1Char('x'));
    }
    void aTypedTextIsStoredAsItIs()
    {
        QFETCH(QString, text);
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        enter(rig, 1, text);
        QCOMPARE(value(rig, 1), text.toUtf8());
        QCOMPARE(rig.host.services.count(), 1);
        QVERIFY(dynamic_cast<TvkMFSetValueCommand*>(&rig.host.services.at(0)));
        // The command has read the field after the write: nothing is lost either way.
        rig.host.services.undo(0);
        QCOMPARE(value(rig, 1), text.toUtf8());
        rig.host.services.redo(0);
        QCOMPARE(value(rig, 1), text.toUtf8());
        TableRig::runSensors();
        QCOMPARE(rig.table().item(1, 0)->text(), text);
    }

    void anEmptyTextCanBeTyped()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        rig.enter(1, 0, QString());
        QCOMPARE(value(rig, 1), QByteArray());
        QCOMPARE(rig.field->getNum(), 3);
        QCOMPARE(rig.host.services.count(), 1);
    }

    void aLineBreakOutlivesAnEdit()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        setValue(rig, 1, "first\nsecond");
        rig.openCell(1, 0);
        QTest::keyClick(rig.openLine(), Qt::Key_End);
        QTest::keyClicks(rig.openLine(), QStringLiteral("!"));
        QTest::keyClick(rig.openLine(), Qt::Key_Return);
        QCOMPARE(value(rig, 1), QByteArray("first\nsecond!"));
    }

    void bytesThatAreNoUtf8AreShownAndStayUntilTheyAreEdited()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        setValue(rig, 1, "caf\xe9");
        QCOMPARE(rig.table().item(1, 0)->text(), QString::fromUtf8("café"));
        rig.openCell(1, 0);
        rig.leave();
        QCOMPARE(value(rig, 1), QByteArray("caf\xe9"));
        QCOMPARE(rig.host.services.count(), 0);
        rig.openCell(1, 0);
        QTest::keyClick(rig.openLine(), Qt::Key_End);
        QTest::keyClicks(rig.openLine(), QStringLiteral("s"));
        QTest::keyClick(rig.openLine(), Qt::Key_Return);
        QCOMPARE(value(rig, 1), QByteArray("caf\xc3\xa9s"));
    }

    void deletedTextsComeBackToTheByte()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        const QList<QByteArray> texts = {"caf\xe9", "a\nb\\", " \"quoted\" \\\" "};
        for (int row = 0; row < 3; ++row)
            setValue(rig, row, texts[row]);
        for (int row = 0; row < 3; ++row) {
            rig.table().setCurrentCell(0, 0);
            rig.click("m_deleteButton");
        }
        QCOMPARE(rig.field->getNum(), 0);
        for (int command = 2; command >= 0; --command)
            rig.host.services.undo(command);
        for (int row = 0; row < 3; ++row)
            QCOMPARE(value(rig, row), texts[row]);
    }

    void anAddedRowIsEmpty()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        rig.node->mfString.setNum(5);
        TableRig::runSensors();
        rig.table().setCurrentCell(3, 0);
        QTest::keyClick(&rig.table(), Qt::Key_Plus);
        QCOMPARE(rig.field->getNum(), 6);
        QCOMPARE(value(rig, 4), QByteArray());
        QCOMPARE(rig.table().currentRow(), 3);
        rig.host.services.undo(0);
        QCOMPARE(rig.field->getNum(), 5);
        rig.host.services.redo(0);
        QCOMPARE(value(rig, 4), QByteArray());
    }

    void keepsSwappingAsACommand()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        editor.swapRows(0, 2);
        QCOMPARE(rig.host.services.count(), 1);
        QVERIFY(dynamic_cast<TvkMFSwapRowsCommand*>(&rig.host.services.at(0)));
        QCOMPARE(value(rig, 0), QByteArray("three"));
        rig.host.services.undo(0);
        QCOMPARE(value(rig, 0), QByteArray("one"));
    }

    void swappedTextsStayAsTheyAreToTheByte()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        setValue(rig, 0, "end\\");
        setValue(rig, 2, "caf\xe9 \"\"");
        editor.swapRows(0, 2);
        QCOMPARE(value(rig, 0), QByteArray("caf\xe9 \"\""));
        QCOMPARE(value(rig, 2), QByteArray("end\\"));
    }
};

TAVRIK_TEST_MAIN(tst_DvMFStringWidget)
#include "tst_DvMFStringWidget.moc"
