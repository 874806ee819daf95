#include "tests/support/FirstEntries.h"
#include "tests/support/TestMain.h"

#include <limits>

namespace {

using Int = std::numeric_limits<int>;

/** The first text that is entered into a 32-bit slider at 7. */
const FirstEntry s_firstEntries[] = {
    {"0x1F", 31, "1F", 16},
    {"0x1f", 31, "1F", 16},
    {"0x0", 0, "0", 16},
    {"017", 15, "17", 8},
    {"0", 0, "0", 10},
    {"00", 0, "0", 8},
    {"08", 0, "0", 8}, // an eight is no octal digit
    {"5", 5, "5", 10},
    {"-5", -5, "-5", 10},
    {"-017", -17, "-17", 10},
    {"-0x1F", 0, "0", 10},
    {"0X1F", 0, "0", 8},
    {"0x", 0, "0", 8},
    {"", 0, "0", 10},
    {"abc", 0, "0", 10},
    {"1F", 0, "0", 10},
    {"1,5", 0, "0", 10},
    {"1.5", 0, "0", 10},
    {"2147483648", Int::max(), "2147483647", 10},
    {"-2147483649", Int::min(), "-2147483648", 10},
    {"99999999999999999999", Int::max(), "2147483647", 10},
    {"-99999999999999999999", Int::min(), "-2147483648", 10},
    {"0xFFFFFFFF", Int::max(), "7FFFFFFF", 16},
    {"0xFFFFFFFFFFFFFFFFFFFF", Int::max(), "7FFFFFFF", 16},
    {"0777777777777", Int::max(), "17777777777", 8},
};

} // namespace

/** The first text that is entered says in which base a slider shows its value from then on. */
class tst_DvIntSliderBases : public QObject
{
    Q_OBJECT

private slots:
    void theFirstTextAnnouncesTheBase_data() { FirstEntry::addRows(s_firstEntries); }
    void theFirstTextAnnouncesTheBase();
    void keepsTheBaseOfTheFirstText();
    void keepsANumberBelowZeroReadableInEveryBase();
    void keepsATextThatIsNoNumberAsZero();
    void theOldTextIsBaseTenInEveryBase();
    void thereIsNoValidatorBeforeTheFirstText();
};

void tst_DvIntSliderBases::theFirstTextAnnouncesTheBase()
{
    FirstEntry::fetchRow(s_firstEntries).check<DvIntSlider>(DvSlider::Int32Kind);
}

void tst_DvIntSliderBases::keepsTheBaseOfTheFirstText()
{
    const SliderRig rig(DvSlider::Int32Kind, {0, 100, 7});
    rig.enter("0x1F");
    rig.enter("ff");
    QCOMPARE(rig.integer().value(), 255);
    QCOMPARE(rig.line->text(), QString("FF"));
    rig.enter("10");
    QCOMPARE(rig.integer().value(), 16);
    rig.enter("0x10");
    QCOMPARE(rig.integer().value(), 16);

    const SliderRig decimal(DvSlider::Int32Kind, {0, 100, 7});
    decimal.enter("5");
    decimal.enter("0x1F");
    QCOMPARE(decimal.integer().base(), 10);
    QCOMPARE(decimal.integer().value(), 1); // neither an x nor an F can be typed any more
}

void tst_DvIntSliderBases::keepsANumberBelowZeroReadableInEveryBase()
{
    const SliderRig rig(DvSlider::Int32Kind, {0, 100, 7});
    rig.enter("0x1F");
    rig.enter("-ff");
    QCOMPARE(rig.integer().value(), -255);
    QCOMPARE(rig.line->text(), QString("-FF"));
    rig.integer().setValue(-5);
    QCOMPARE(rig.line->text(), QString("-5"));
    rig.enter("-80000001");
    QCOMPARE(rig.integer().value(), Int::min());
    QCOMPARE(rig.line->text(), QString("-80000000"));
}

void tst_DvIntSliderBases::keepsATextThatIsNoNumberAsZero()
{
    const SliderRig rig(DvSlider::Int32Kind, {0, 100, 7});
    rig.enter("0x1F");
    rig.enter("zz");
    QCOMPARE(rig.integer().value(), 0);
    QCOMPARE(rig.line->text(), QString("0"));
}

void tst_DvIntSliderBases::theOldTextIsBaseTenInEveryBase()
{
    SliderRig rig(DvSlider::Int32Kind, {0, 100, 7});
    rig.enter("0x1F");
    rig.takeCalls();
    rig.pressAndRelease();
    QCOMPARE(rig.calls, QStringList("commit 31 (was 31)"));
}

void tst_DvIntSliderBases::thereIsNoValidatorBeforeTheFirstText()
{
    const SliderRig rig(DvSlider::Int32Kind, {0, 100, 7});
    QVERIFY(!rig.line->validator());
    rig.enter("0x1F");
    QVERIFY(!rig.line->validator());
}

TAVRIK_TEST_MAIN(tst_DvIntSliderBases)
#include "tst_DvIntSliderBases.moc"
