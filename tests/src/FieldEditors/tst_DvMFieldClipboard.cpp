#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/DvMFieldClipboard.h"
#include "FieldEditors/MFWidgets/DvMFFloatWidget.h"
#include "FieldEditors/MFWidgets/DvMFMatrixWidget.h"
#include "FieldEditors/MFWidgets/DvMFStringWidget.h"
#include "FieldEditors/MFWidgets/DvMFUInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFVec2fWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec3fWidget.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QToolTip>

using Rows = DvMFieldClipboard::Rows;

class tst_DvMFieldClipboard : public QObject
{
    Q_OBJECT

private:
    static QString clipboard() { return QApplication::clipboard()->text(); }
    static void setClipboard(const QString& text) { QApplication::clipboard()->setText(text); }
    static void copy(const TableRig& rig) { press(rig, Qt::Key_C); }
    static void paste(const TableRig& rig) { press(rig, Qt::Key_V); }
    static void press(const TableRig& rig, Qt::Key key)
    {
        QTest::keyClick(&rig.table(), key, Qt::ControlModifier);
        // Or the key would count as held from now on.
        QTest::keyRelease(&rig.table(), Qt::Key_Control);
    }
    static void select(const TableRig& rig, int top, int left, int bottom, int right)
    {
        rig.table().setCurrentCell(top, left);
        rig.table().clearSelection();
        rig.table().setRangeSelected({top, left, bottom, right}, true);
    }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void textsComeBack_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << "one";
        QTest::newRow("empty") << "";
        QTest::newRow("tab") << "a\tb";
        QTest::newRow("lines") << "a\nb\r\nc";
        QTest::newRow("quotes") << "\"a\" and \"\"b";
        QTest::newRow("only a quote") << "\"";
        QTest::newRow("backslash") << "a\\";
    }
    void textsComeBack()
    {
        QFETCH(QString, text);
        const Rows rows{{text, "x"}, {"y", text}};
        Rows read = DvMFieldClipboard::fromText(DvMFieldClipboard::toText(rows));
        for (QStringList& row : read)
            row.replaceInStrings("\r\n", "\n");
        QString expected = text;
        expected.replace("\r\n", "\n");
        QCOMPARE(read, (Rows{{expected, "x"}, {"y", expected}}));
    }

    void textsOfOthersAreRead_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Rows>("rows");
        QTest::newRow("a last line's end") << "1\t2\n3\t4\n" << Rows{{"1", "2"}, {"3", "4"}};
        QTest::newRow("carriage returns") << "1\t2\r\n3\t4\r\n" << Rows{{"1", "2"}, {"3", "4"}};
        QTest::newRow("an empty last cell") << "1\t\n\t2" << Rows{{"1", ""}, {"", "2"}};
        QTest::newRow("a tab at the end") << "1\t" << Rows{{"1", ""}};
        QTest::newRow("a word in quotes") << "\"a\" b\tc" << Rows{{"\"a\" b", "c"}};
        QTest::newRow("a lonely quote") << "\"a\tb" << Rows{{"\"a", "b"}};
        QTest::newRow("quoted last") << "1\t\"a\"" << Rows{{"1", "a"}};
    }
    void textsOfOthersAreRead()
    {
        QFETCH(QString, text);
        QFETCH(Rows, rows);
        QCOMPARE(DvMFieldClipboard::fromText(text), rows);
    }

    void aBlockIsCopied()
    {
        DvMFVec3fWidget editor;
        const TableRig rig(editor, "mfVec3f");
        select(rig, 0, 1, 1, 2);
        copy(rig);
        QCOMPARE(clipboard(), QStringLiteral("2\t3\n5\t6"));
    }

    void withoutASelectionTheCurrentCellIsCopied()
    {
        DvMFVec3fWidget editor;
        const TableRig rig(editor, "mfVec3f");
        rig.table().setCurrentCell(1, 2);
        rig.table().clearSelection();
        copy(rig);
        QCOMPARE(clipboard(), QStringLiteral("6"));
    }

    void aBlockIsPastedWithTheCommandsOfTyping()
    {
        DvMFVec3fWidget editor;
        const TableRig rig(editor, "mfVec3f");
        rig.table().setCurrentCell(1, 1);
        setClipboard("20\t21\n30\t31");
        paste(rig);
        QCOMPARE(rig.rows(), (QList<QByteArray>{"1 2 3", "4 20 21", "7 30 31"}));
        QCOMPARE(rig.host.services.count(), 4);
        TableRig::runSensors();
        QCOMPARE(rig.shownRow(1), QStringLiteral("4|20|21"));
    }

    void whatLiesOutsideIsDropped()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.table().setCurrentCell(2, 1);
        setClipboard("10\t11\t12\n20\t21\t22");
        paste(rig);
        QCOMPARE(rig.rows(), (QList<QByteArray>{"1 2", "3 4", "5 10"}));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void aTextThatIsNoValueLeavesItsCell()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.table().setCurrentCell(0, 0);
        setClipboard("abc\t20\n30\t");
        paste(rig);
        QCOMPARE(rig.rows(), (QList<QByteArray>{"1 20", "30 4", "5 6"}));
        QCOMPARE(rig.shownRow(0), QStringLiteral("abc|20"));
        QCOMPARE(QToolTip::text(), QStringLiteral("Cells left as they are, since the text is no "
                                                  "value for them: 2"));
        TableRig::runSensors();
        QCOMPARE(rig.shownRow(0), QStringLiteral("1|20"));
        QToolTip::hideText();
    }

    void copiedRowsOfEveryPrecisionAndBaseArePasted()
    {
        DvMFFloatWidget floats;
        const TableRig reals(floats, "mfFloat");
        reals.field->set("[1.2345678, 1e-20, -3]");
        TableRig::runSensors();
        const QList<QByteArray> before = reals.rows();
        select(reals, 0, 0, 2, 0);
        copy(reals);
        reals.field->set("[0, 0, 0]");
        paste(reals);
        QCOMPARE(reals.rows(), before);

        DvMFUInt32Widget integers;
        const TableRig naturals(integers, "mfUInt32");
        naturals.field->set("[4294967295, 255, 0]");
        TableRig::runSensors();
        const QList<QByteArray> numbers = naturals.rows();
        select(naturals, 0, 0, 2, 0);
        copy(naturals);
        naturals.field->set("[1, 1, 1]");
        paste(naturals);
        QCOMPARE(naturals.rows(), numbers);
    }

    void stringsArePastedAsTheyWere()
    {
        DvMFStringWidget editor;
        const TableRig rig(editor, "mfString");
        auto& strings = static_cast<SoMFString&>(*rig.field);
        const char* const texts[] = {"a\tb", "say \"hi\"", "two\nlines"};
        for (int row = 0; row < 3; ++row)
            strings.set1Value(row, texts[row]);
        TableRig::runSensors();
        select(rig, 0, 0, 2, 0);
        copy(rig);
        for (int row = 0; row < 3; ++row)
            strings.set1Value(row, "x");
        paste(rig);
        for (int row = 0; row < 3; ++row)
            QCOMPARE(strings[row].getString(), texts[row]);
    }

    void anOpenCellHasTheClipboardForItself()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        setClipboard("8\t9");
        rig.openCell(1, 0);
        QTest::keyClick(&rig.table(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(rig.rows().at(1), QByteArray("3 4"));
        QVERIFY(rig.openLine());
    }

    void aReadOnlyTableIsCopiedButNotPastedInto()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        auto* const master = new SoEveryField;
        master->ref();
        master->mfVec2f.set("[8 9]");
        rig.field->connectFrom(&master->mfVec2f);
        TableRig::runSensors();
        rig.table().setCurrentCell(0, 0);
        copy(rig);
        QCOMPARE(clipboard(), QStringLiteral("8"));
        setClipboard("1");
        paste(rig);
        QCOMPARE(rig.rows(), QList<QByteArray>{"8 9"});
        QCOMPARE(rig.host.services.count(), 0);
        rig.field->disconnect();
        master->unref();
    }

    void cellsThatAreEditedElsewhereAreNotPastedInto()
    {
        DvMFMatrixWidget editor;
        const TableRig rig(editor, "mfMatrix");
        const QList<QByteArray> before = rig.rows();
        setClipboard("1");
        paste(rig);
        QCOMPARE(rig.rows(), before);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void anEmptyTableCopiesAndPastesNothing()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.field->setNum(0);
        TableRig::runSensors();
        setClipboard("1\t2");
        copy(rig);
        QCOMPARE(clipboard(), QStringLiteral("1\t2"));
        paste(rig);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void theContextMenuOffersBoth()
    {
        DvMFVec2fWidget editor;
        const TableRig rig(editor, "mfVec2f");
        rig.table().setCurrentCell(1, 0);
        setClipboard("8");
        const QPoint place = rig.table().viewport()->rect().center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place);
        QApplication::sendEvent(rig.table().viewport(), &event);
        auto* const menu = rig.find<QMenu>("m_cellMenu");
        QVERIFY(menu);
        QCOMPARE(menu->actions().at(0)->text(), QStringLiteral("Copy cells"));
        QCOMPARE(menu->actions().at(1)->text(), QStringLiteral("Paste cells"));
        menu->actions().at(1)->trigger();
        QCOMPARE(rig.rows().at(1), QByteArray("8 4"));
        menu->actions().at(0)->trigger();
        QCOMPARE(clipboard(), QStringLiteral("8"));
        menu->close();
    }
};

TAVRIK_TEST_MAIN(tst_DvMFieldClipboard)
#include "tst_DvMFieldClipboard.moc"
