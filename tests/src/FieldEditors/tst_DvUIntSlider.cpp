#include "tests/support/FirstEntries.h"
#include "tests/support/TestMain.h"
#include "tests/support/UserLanguage.h"

#include <QRandomGenerator>

#include <limits>

namespace {

using UInt = std::numeric_limits<unsigned>;
using Int = std::numeric_limits<int>;
constexpr int s_uint32 = DvSlider::UInt32Kind;
constexpr int s_ushort = DvSlider::UShortKind;

/** The first text that is entered into a 32-bit slider at 7. */
const FirstEntry s_firstEntries[] = {
    {"0x1F", 31, "1F", 16},
    {"0x1f", 31, "1F", 16},
    {"017", 15, "17", 8},
    {"0", 0, "0", 10},
    {"00", 0, "0", 8},
    {"5", 5, "5", 10},
    {"+5", 5, "5", 10},
    {"4294967295", UInt::max(), "4294967295", 10},
    {"4294967296", UInt::max(), "4294967295", 10},
    {"99999999999999999999", UInt::max(), "4294967295", 10},
    {"0xFFFFFFFF", UInt::max(), "FFFFFFFF", 16},
    {"0x1FFFFFFFF", UInt::max(), "FFFFFFFF", 16},
    // No unsigned numbers: the value stays.
    {"08", 7, "7", 8},
    {"0x", 7, "7", 8},
    {"0xg", 7, "7", 16},
    {"0X1F", 7, "7", 8},
    {"", 7, "7", 10},
    {"-", 7, "7", 10},
    {"-5", 7, "7", 10},
    {"-99999999999999999999", 7, "7", 10},
    {"abc", 7, "7", 10},
    {"1F", 7, "7", 10},
    {"1,5", 7, "7", 10},
    {"1.5", 7, "7", 10},
};

} // namespace

class tst_DvUIntSlider : public QObject
{
    Q_OBJECT

private slots:
    void theFirstTextAnnouncesTheBase_data() { FirstEntry::addRows(s_firstEntries); }
    void theFirstTextAnnouncesTheBase();
    void keepsTheBaseOfTheFirstText();
    void keepsTheValueForATextThatIsNoNumber();
    void theOldTextIsBaseTenInEveryBase();
    void thereIsNoValidator();
    void aShortSliderNeverLeavesItsLimits();
    void keepsHalfTheRangeOffThePositions_data();
    void keepsHalfTheRangeOffThePositions();
    void theWholeRangeFits();
    void aStrictRangeClampsWhatIsEntered();
    void aRangeGrowsToTakeInAValueUntilItIsSetAgain();
    void aValueSurvivesEveryRangeAndEveryPress();
    void aRangeTurnedRoundIsIgnored();
    void numbersAreTypedInEveryLanguage_data();
    void numbersAreTypedInEveryLanguage();
};

void tst_DvUIntSlider::theFirstTextAnnouncesTheBase()
{
    FirstEntry::fetchRow(s_firstEntries).check<DvUIntSlider>(s_uint32);
}

void tst_DvUIntSlider::keepsTheBaseOfTheFirstText()
{
    const SliderRig rig(s_uint32, {0, 100, 7});
    rig.enter("0x1F");
    rig.enter("ff");
    QCOMPARE(rig.natural().value(), 255U);
    QCOMPARE(rig.line->text(), QString("FF"));
    rig.enter("10");
    QCOMPARE(rig.natural().value(), 16U);

    const SliderRig decimal(s_uint32, {0, 100, 7});
    decimal.enter("5");
    decimal.enter("0x1F");
    QCOMPARE(decimal.natural().base(), 10);
    QCOMPARE(decimal.natural().value(), 5U);
    QCOMPARE(decimal.line->text(), QString("5"));
}

void tst_DvUIntSlider::keepsTheValueForATextThatIsNoNumber()
{
    const SliderRig rig(s_uint32, {0, 100, 7});
    for (const char* text : {"abc", "-5", "", "1 2"}) {
        rig.enter(QString::fromLatin1(text));
        QCOMPARE(rig.natural().value(), 7U);
        QCOMPARE(rig.line->text(), QString("7"));
        QVERIFY(!rig.slider->hasPendingEdit());
    }
}

void tst_DvUIntSlider::theOldTextIsBaseTenInEveryBase()
{
    SliderRig rig(s_uint32, {0, 100, 7});
    rig.enter("0x1F");
    rig.takeCalls();
    rig.pressAndRelease();
    QCOMPARE(rig.calls, QStringList("commit 31 (was 31)"));
}

void tst_DvUIntSlider::thereIsNoValidator()
{
    for (const int kind : {s_uint32, s_ushort}) {
        const SliderRig rig(kind, {0, 100, 7});
        QVERIFY(!rig.line->validator());
        rig.enter("5");
        QVERIFY(!rig.line->validator());
    }
}

void tst_DvUIntSlider::aShortSliderNeverLeavesItsLimits()
{
    const SliderRig rig(s_ushort, {0, 100, 7});
    for (const char* text : {"65536", "70000", "99999999999999999999", "65535"}) {
        rig.enter(QString::fromLatin1(text));
        QCOMPARE(rig.natural().value(), 65535U);
        QCOMPARE(rig.line->text(), QString("65535"));
    }
    rig.natural().setValue(UInt::max());
    QCOMPARE(rig.natural().value(), 65535U);
    rig.natural().setRange(70000, 80000, true);
    rig.thumb->setValue(rig.thumb->maximum());
    rig.enter("5");
    QCOMPARE(rig.natural().value(), 65535U);
    const SliderRig hex(s_ushort, {0, 100, 7});
    hex.enter("0xFFFFF");
    QCOMPARE(hex.natural().value(), 65535U);
}

void tst_DvUIntSlider::keepsHalfTheRangeOffThePositions_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("uint32") << s_uint32;
    QTest::newRow("ushort") << s_ushort;
}

void tst_DvUIntSlider::keepsHalfTheRangeOffThePositions()
{
    QFETCH(int, kind);
    const unsigned top = kind == s_ushort ? 65535U : UInt::max();
    const SliderRig rig(kind, {0, double(top), 0});
    QRandomGenerator random(1);
    for (int i = 0; i < 10000; ++i) {
        const unsigned value = random.generate() & top;
        rig.natural().setValue(value);
        QCOMPARE(qint64(rig.thumb->value()), qint64(value) - 0x80000000LL);
        const unsigned other = random.generate() & top;
        rig.thumb->setValue(int(qint64(other) - 0x80000000LL));
        QCOMPARE(rig.natural().value(), other);
    }
}

void tst_DvUIntSlider::theWholeRangeFits()
{
    const SliderRig rig(s_uint32, {0, double(UInt::max()), 0});
    QCOMPARE(rig.thumb->minimum(), Int::min());
    QCOMPARE(rig.thumb->maximum(), Int::max());
    rig.thumb->setFocus();
    QTest::keyClick(rig.thumb, Qt::Key_End);
    QCOMPARE(rig.natural().value(), UInt::max());
    QCOMPARE(rig.line->text(), QString("4294967295"));
    QTest::keyClick(rig.thumb, Qt::Key_Right);
    QCOMPARE(rig.natural().value(), UInt::max());
    QTest::keyClick(rig.thumb, Qt::Key_Home);
    QCOMPARE(rig.natural().value(), 0U);
}

void tst_DvUIntSlider::aStrictRangeClampsWhatIsEntered()
{
    const SliderRig rig(s_uint32);
    rig.natural().setRange(5, 10, true);
    rig.enter("50");
    QCOMPARE(rig.natural().value(), 10U);
    rig.enter("1");
    QCOMPARE(rig.natural().value(), 5U);
    QCOMPARE(rig.natural().maximum(), 10U);
    QVERIFY(rig.natural().isBounded());
}

void tst_DvUIntSlider::aRangeGrowsToTakeInAValueUntilItIsSetAgain()
{
    const SliderRig rig(s_uint32, {10, 100, 5000});
    rig.enter("3");
    QCOMPARE(rig.natural().minimum(), 3U);
    QCOMPARE(rig.natural().maximum(), 5000U);
    QCOMPARE(rig.thumb->value(), rig.thumb->minimum());
    rig.natural().setRange(0, 100, false);
    QCOMPARE(rig.natural().minimum(), 0U);
    QCOMPARE(rig.natural().maximum(), 100U);
    QCOMPARE(qint64(rig.thumb->maximum()), 100 - 0x80000000LL);
}

void tst_DvUIntSlider::aValueSurvivesEveryRangeAndEveryPress()
{
    const SliderRig rig(s_uint32, {0, 100, 5000});
    for (const bool bounded : {false, true}) {
        rig.natural().setRange(0, 100, bounded);
        rig.pressAndRelease();
        QCOMPARE(rig.natural().value(), 5000U);
        QCOMPARE(rig.line->text(), QString("5000"));
    }
    QCOMPARE(rig.calls, QStringList({"commit 5000 (was 5000)", "commit 5000 (was 5000)"}));
}

void tst_DvUIntSlider::aRangeTurnedRoundIsIgnored()
{
    const SliderRig rig(s_uint32, {0, 100, 7});
    rig.natural().setRange(10, 5, true);
    QCOMPARE(rig.natural().minimum(), 0U);
    QCOMPARE(rig.natural().maximum(), 100U);
    QVERIFY(!rig.natural().isBounded());
}

void tst_DvUIntSlider::numbersAreTypedInEveryLanguage_data()
{
    QTest::addColumn<QByteArray>("language");
    for (const QByteArray& language : UserLanguage::tested())
        QTest::newRow(language.constData()) << language;
}

void tst_DvUIntSlider::numbersAreTypedInEveryLanguage()
{
    QFETCH(QByteArray, language);
    const UserLanguage user(language);
    const SliderRig rig(s_uint32, {0, 100, 7});
    rig.enter("12345");
    rig.enter("4000000000");
    QCOMPARE(rig.calls, QStringList({"commit 12345", "commit 4000000000"}));
    QCOMPARE(rig.line->text(), QString("4000000000"));
}

TAVRIK_TEST_MAIN(tst_DvUIntSlider)
#include "tst_DvUIntSlider.moc"
