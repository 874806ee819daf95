#include "FieldEditors/DvLayoutConstants.h"

#include "tests/support/TestMain.h"

namespace {

const DvLayoutConstants::Row s_expected[] = {
    {"frameLineWidth", 0},
    {"SFColorInterSpacing", 2},
    {"labelLineWidth", 0},
    {"SFColorDispWidth", 20},
    {"labelPointSize", 10},
    {"SFVecLineHeight", 16},
    {"labelHeight", 20},
    {"SFVecLabelHeight", 14},
    {"buttonWidth", 20},
    {"SF4fBoxVSpacing", 4},
    {"buttonHeight", 20},
    {"SF4fBoxHSpacing", 4},
    {"PopupFrameWidth", 260},
    {"SF4fBoxHMargin", 2},
    {"PopupFrameHeight", 100},
    {"SF3fBoxVSpacing", 4},
    {"PopupLayoutMargin", 6},
    {"SF3fBoxHSpacing", 20},
    {"PopupLayoutSpacing", 8},
    {"SF3fBoxHMargin", 2},
    {"SFieldLayoutMargin", 4},
    {"SF2BoxHSpacing", 25},
    {"SFieldLayoutSpacing", 6},
    {"SF2BoxHMargin", 2},
    {"SFieldEditLayoutMargin", 0},
    {"SF2BoxVSpacing", 4},
    {"SFieldEditLayoutSpacing", 0},
    {"MFGlobalLayoutSpacing", 2},
    {"SFButtonLayoutMargin", 2},
    {"MFGlobalLayoutMarging", 6},
    {"SFButtonLayoutSpacing", 0},
    {"MFGlobalButtonsLayoutMargin", 0},
    {"SFEditionAreaLayMargin", 0},
    {"MFGlobalButtonsLayoutSpacing", 5},
    {"SFEditionAreaLaySpacing", 2},
    {"MFButtonLayoutMargin", 0},
    {"SFComponentHeight", 18},
    {"MFButtonLayoutSpacing", 0},
    {"SFBoolWidth", 16},
    {"MFAccessWidth", 60},
    {"SFColorSpacing", 6},
    {"MFManageAccessSpacerWidth", 0},
    {"SFColorMargin", 0},
    {"MFManageAccessSpacerHeight", 0},
    {"MFAccessMoveSpacerHeight", 0},
    {"MFAccessMoveSpacerWidth", 0},
    {"MFTableMinHeightWin", 43},
    {"MFTableMinHeightUnix", 46},
};

} // namespace

class tst_DvLayoutConstants : public QObject
{
    Q_OBJECT

private slots:
    void everyNameHasItsValue_data();
    void everyNameHasItsValue();
    void theTableHasTheseNamesAndNoOthers();
    void anUnknownNameReadsZero_data();
    void anUnknownNameReadsZero();
    void keepsTheMarginNameAsItIsSpelt();
    void aNameHeldElsewhereIsTheSameName();
    void aNameIsReadWhenItIsAskedFor();
};

void tst_DvLayoutConstants::everyNameHasItsValue_data()
{
    QTest::addColumn<int>("value");
    for (const auto& row : s_expected)
        QTest::newRow(row.name) << row.value;
}

void tst_DvLayoutConstants::everyNameHasItsValue()
{
    QFETCH(int, value);
    QCOMPARE(DvLayoutConstants::value(QTest::currentDataTag()), value);
    QCOMPARE(DvLayoutConstants::value(QTest::currentDataTag()), value); // from the cache
}

void tst_DvLayoutConstants::theTableHasTheseNamesAndNoOthers()
{
    QMap<QByteArray, int> expected;
    for (const auto& row : s_expected)
        expected.insert(row.name, row.value);
    QMap<QByteArray, int> table;
    for (int i = 0; i < DvLayoutConstants::rowCount; ++i)
        table.insert(DvLayoutConstants::table()[i].name, DvLayoutConstants::table()[i].value);
    QCOMPARE(table.size(), 48);
    QCOMPARE(table, expected);
}

void tst_DvLayoutConstants::anUnknownNameReadsZero_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("unknown") << QByteArray("noSuchConstant");
    QTest::newRow("other case") << QByteArray("labelpointsize");
    QTest::newRow("first letter's case") << QByteArray("LabelPointSize");
    QTest::newRow("only the beginning") << QByteArray("labelPointSiz");
    QTest::newRow("more than the name") << QByteArray("labelPointSize ");
    QTest::newRow("beyond ASCII") << QByteArray("labelPointSiz\xc3\xa9");
}

void tst_DvLayoutConstants::anUnknownNameReadsZero()
{
    QFETCH(QByteArray, name);
    QCOMPARE(DvLayoutConstants::value(name.constData()), 0);
    QCOMPARE(DvLayoutConstants::value(name.constData()), 0);
}

void tst_DvLayoutConstants::keepsTheMarginNameAsItIsSpelt()
{
    QCOMPARE(DvLayoutConstants::value("MFGlobalLayoutMarging"), 6);
    QCOMPARE(DvLayoutConstants::value("MFGlobalLayoutMargin"), 0);
}

void tst_DvLayoutConstants::aNameHeldElsewhereIsTheSameName()
{
    const QByteArray copy = QByteArray("SF2Box") + "HSpacing";
    QCOMPARE(DvLayoutConstants::value(copy.constData()), 25);
}

void tst_DvLayoutConstants::aNameIsReadWhenItIsAskedFor()
{
    char name[] = "SFBoolWidth";
    QCOMPARE(DvLayoutConstants::value(name), 16);
    name[0] = 'M'; // the buffer that was asked with first is another name now
    QCOMPARE(DvLayoutConstants::value(name), 0);
    QCOMPARE(DvLayoutConstants::value("SFBoolWidth"), 16);
}

TAVRIK_TEST_MAIN(tst_DvLayoutConstants)
#include "tst_DvLayoutConstants.moc"
