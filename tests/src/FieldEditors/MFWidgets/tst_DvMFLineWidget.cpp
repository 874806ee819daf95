#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/MFWidgets/DvMFDoubleWidget.h"
#include "FieldEditors/MFWidgets/DvMFFloatWidget.h"
#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFShortWidget.h"
#include "FieldEditors/MFWidgets/DvMFUInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFUShortWidget.h"

#include <memory>

namespace {

struct Member
{
    const char* field;
    std::function<std::unique_ptr<DvMFieldWidget>()> make;
};

template <class Editor>
Member member(const char* field)
{
    return {field, [] { return std::make_unique<Editor>(); }};
}

const Member s_members[] = {
    member<DvMFDoubleWidget>("mfDouble"), member<DvMFFloatWidget>("mfFloat"),
    member<DvMFInt32Widget>("mfInt32"),   member<DvMFShortWidget>("mfShort"),
    member<DvMFUInt32Widget>("mfUInt32"), member<DvMFUShortWidget>("mfUShort"),
};

const Member& memberOf(const QByteArray& field)
{
    return *std::find_if(std::begin(s_members), std::end(s_members),
                         [&](const Member& member) { return field == member.field; });
}

} // namespace

/** The six editors of single-column numbers, by what they type and what the field holds then. */
class tst_DvMFLineWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void keepsNoUndoEntryForAnEditedCell_data()
    {
        QTest::addColumn<QByteArray>("field");
        for (const Member& member : s_members)
            QTest::newRow(member.field) << QByteArray(member.field);
    }
    void keepsNoUndoEntryForAnEditedCell()
    {
        QFETCH(QByteArray, field);
        const auto editor = memberOf(field).make();
        const TableRig rig(*editor, field.constData());
        rig.enter(1, 0, QStringLiteral("9"));
        QVERIFY(rig.rows()[1] == "9" || rig.rows()[1] == "0x9");
        QCOMPARE(rig.host.services.count(), 0);
        QCOMPARE(rig.host.services.nullCommands, 0);
    }

    void aTypedNumberReachesTheField_data()
    {
        QTest::addColumn<QByteArray>("field");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QByteArray>("text");
        const auto row = [](const char* field, const char* typed, const char* text) {
            QTest::addRow("%s %s", field, typed)
                << QByteArray(field) << QString(typed) << QByteArray(text);
        };
        row("mfDouble", "0.1", "0.1");
        // Coin writes 16 digits.
        row("mfDouble", "1.7976931348623157e+308", "1.797693134862316e+308");
        row("mfDouble", "-2.5e-300", "-2.5e-300");
        row("mfFloat", "0.5", "0.5");
        row("mfFloat", "-3", "-3");
        row("mfInt32", "2147483647", "2147483647");
        row("mfInt32", "-2147483648", "-2147483648");
        row("mfShort", "32767", "32767");
        row("mfShort", "-32768", "-32768");
        // In the base that the cell shows; beyond the type's limit is the limit.
        row("mfUInt32", "ff", "0xff");
        row("mfUInt32", "FFFFFFFF", "0xffffffff");
        row("mfUInt32", "100000000", "0xffffffff");
        row("mfUShort", "abcd", "0xabcd");
        row("mfUShort", "10000", "0xffff");
    }
    void aTypedNumberReachesTheField()
    {
        QFETCH(QByteArray, field);
        QFETCH(QString, typed);
        QFETCH(QByteArray, text);
        const auto editor = memberOf(field).make();
        const TableRig rig(*editor, field.constData());
        rig.enter(1, 0, typed);
        QCOMPARE(rig.rows()[1], text);
    }

    void keepsTheBaseThatTheCellShowsForWhatIsTyped()
    {
        DvMFUInt32Widget editor;
        const TableRig rig(editor, "mfUInt32");
        rig.field->set1(1, "255");
        TableRig::runSensors();
        rig.openCell(1, 0);
        QCOMPARE(rig.openLine()->text(), QStringLiteral("FF"));
        rig.enter(1, 0, QStringLiteral("10"));
        TableRig::runSensors();
        QCOMPARE(rig.shownRow(1), QStringLiteral("0x10"));
        // A prefix says nothing else.
        rig.enter(1, 0, QStringLiteral("0x20"));
        TableRig::runSensors();
        QCOMPARE(rig.shownRow(1), QStringLiteral("0x20"));
    }

    void hexadecimalNumbersStayInOrderWhenTheirCellIsOpened_data()
    {
        QTest::addColumn<QByteArray>("field");
        QTest::newRow("mfUInt32") << QByteArray("mfUInt32");
        QTest::newRow("mfUShort") << QByteArray("mfUShort");
    }
    void hexadecimalNumbersStayInOrderWhenTheirCellIsOpened()
    {
        QFETCH(QByteArray, field);
        const auto editor = memberOf(field).make();
        const TableRig rig(*editor, field.constData());
        QVERIFY(rig.field->set1(1, "0x1f"));
        TableRig::runSensors();
        QCOMPARE(rig.shownRow(1), QStringLiteral("0x1f"));
        rig.openCell(1, 0);
        QCOMPARE(rig.openLine()->text(), QStringLiteral("1F"));
        QTest::keyClick(rig.openLine(), Qt::Key_End);
        QTest::keyClicks(rig.openLine(), QStringLiteral("0"));
        QTest::keyClick(rig.openLine(), Qt::Key_Return);
        QCOMPARE(rig.rows()[1], QByteArray("0x1f0"));
    }
};

TAVRIK_TEST_MAIN(tst_DvMFLineWidget)
#include "tst_DvMFLineWidget.moc"
