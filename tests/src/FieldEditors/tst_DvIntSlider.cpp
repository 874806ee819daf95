#include "tests/support/SliderRig.h"
#include "tests/support/TestMain.h"
#include "tests/support/UserLanguage.h"

#include <QIntValidator>
#include <QRandomGenerator>

#include <limits>

namespace {

using Int = std::numeric_limits<int>;

} // namespace

class tst_DvIntSlider : public QObject
{
    Q_OBJECT

private slots:
    void theValidatorHasTheLimitsOfTheType_data();
    void theValidatorHasTheLimitsOfTheType();
    void aShortNumberIsClampedToItsLimits_data();
    void aShortNumberIsClampedToItsLimits();
    void aShortSliderNeverLeavesItsLimits();
    void thePositionIsTheValue();
    void theWholeRangeFits();
    void aStrictRangeClampsWhatIsEntered();
    void aRangeGrowsToTakeInAValueUntilItIsSetAgain();
    void aValueSurvivesEveryRangeAndEveryPress();
    void aRangeTurnedRoundIsIgnored();
    void equalEndsHaveOneValue();
    void numbersAreTypedInEveryLanguage_data();
    void numbersAreTypedInEveryLanguage();
};

void tst_DvIntSlider::theValidatorHasTheLimitsOfTheType_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("top");
    QTest::newRow("int32") << int(DvSlider::Int32Kind) << Int::min() << Int::max();
    QTest::newRow("short") << int(DvSlider::ShortKind) << -32768 << 32767;
}

void tst_DvIntSlider::theValidatorHasTheLimitsOfTheType()
{
    QFETCH(int, kind);
    QFETCH(int, bottom);
    QFETCH(int, top);
    const SliderRig rig(kind, {0, 100, 7});
    rig.enter("5");
    const auto* const validator = qobject_cast<const QIntValidator*>(rig.line->validator());
    QVERIFY(validator);
    QCOMPARE(validator->bottom(), bottom);
    QCOMPARE(validator->top(), top);
}

void tst_DvIntSlider::aShortNumberIsClampedToItsLimits_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("value");
    for (const char* typed : {"32767", "32768", "40000", "100000", "99999999999999999999"})
        QTest::newRow(typed) << QString(typed) << 32767;
    for (const char* typed : {"-32768", "-40000", "-100000", "-99999999999999999999"})
        QTest::newRow(typed) << QString(typed) << -32768;
}

void tst_DvIntSlider::aShortNumberIsClampedToItsLimits()
{
    QFETCH(QString, typed);
    QFETCH(int, value);
    const SliderRig rig(DvSlider::ShortKind, {0, 100, 7});
    rig.enter(typed);
    QCOMPARE(rig.integer().value(), value);
    rig.enter("5");
    rig.enter(typed); // with its validator by now
    QCOMPARE(rig.integer().value(), value);
    QCOMPARE(rig.line->text(), QString::number(value));
}

void tst_DvIntSlider::aShortSliderNeverLeavesItsLimits()
{
    const SliderRig rig(DvSlider::ShortKind, {0, 100, 40000});
    QCOMPARE(rig.integer().value(), 32767);
    rig.integer().setRange(-100000, 100000, false);
    QCOMPARE(rig.thumb->minimum(), -32768);
    QCOMPARE(rig.thumb->maximum(), 32767);
    rig.enter("0xFFFFF");
    QCOMPARE(rig.integer().value(), 32767);
}

void tst_DvIntSlider::thePositionIsTheValue()
{
    const SliderRig rig(DvSlider::Int32Kind, {Int::min(), Int::max(), 0});
    QRandomGenerator random(1);
    for (int i = 0; i < 10000; ++i) {
        const auto value = static_cast<int>(random.generate());
        rig.integer().setValue(value);
        QCOMPARE(rig.thumb->value(), value);
        const auto position = static_cast<int>(random.generate());
        rig.thumb->setValue(position);
        QCOMPARE(rig.integer().value(), position);
    }
}

void tst_DvIntSlider::theWholeRangeFits()
{
    const SliderRig rig(DvSlider::Int32Kind, {Int::min(), Int::max(), 0});
    rig.thumb->setFocus();
    QTest::keyClick(rig.thumb, Qt::Key_End);
    QCOMPARE(rig.integer().value(), Int::max());
    QTest::keyClick(rig.thumb, Qt::Key_Right);
    QCOMPARE(rig.integer().value(), Int::max());
    QTest::keyClick(rig.thumb, Qt::Key_Home);
    QCOMPARE(rig.integer().value(), Int::min());
    QCOMPARE(rig.line->text(), QString("-2147483648"));
}

void tst_DvIntSlider::aStrictRangeClampsWhatIsEntered()
{
    const SliderRig rig(DvSlider::Int32Kind);
    rig.integer().setRange(0, 10, true);
    rig.enter("50");
    QCOMPARE(rig.integer().value(), 10);
    rig.enter("-50");
    QCOMPARE(rig.integer().value(), 0);
    QCOMPARE(rig.integer().maximum(), 10);
    QVERIFY(rig.integer().isBounded());
}

void tst_DvIntSlider::aRangeGrowsToTakeInAValueUntilItIsSetAgain()
{
    const SliderRig rig(DvSlider::Int32Kind, {0, 100, 5000});
    QCOMPARE(rig.thumb->maximum(), 5000);
    rig.enter("-20");
    QCOMPARE(rig.thumb->minimum(), -20);
    rig.integer().setValue(5);
    QCOMPARE(rig.thumb->minimum(), -20);
    QCOMPARE(rig.thumb->maximum(), 5000);
    rig.integer().setRange(0, 100, false);
    QCOMPARE(rig.thumb->minimum(), 0);
    QCOMPARE(rig.thumb->maximum(), 100);
}

void tst_DvIntSlider::aValueSurvivesEveryRangeAndEveryPress()
{
    const SliderRig rig(DvSlider::Int32Kind, {0, 100, 5000});
    for (const bool bounded : {false, true}) {
        rig.integer().setRange(0, 100, bounded);
        rig.pressAndRelease();
        QCOMPARE(rig.integer().value(), 5000);
        QCOMPARE(rig.line->text(), QString("5000"));
    }
    QCOMPARE(rig.calls, QStringList({"commit 5000 (was 5000)", "commit 5000 (was 5000)"}));
    rig.integer().setRange(0, 10000, true);
    QCOMPARE(rig.thumb->value(), 5000);
}

void tst_DvIntSlider::aRangeTurnedRoundIsIgnored()
{
    const SliderRig rig(DvSlider::Int32Kind, {0, 100, 7});
    rig.integer().setRange(10, 5, true);
    QCOMPARE(rig.integer().minimum(), 0);
    QCOMPARE(rig.integer().maximum(), 100);
    QVERIFY(!rig.integer().isBounded());
}

void tst_DvIntSlider::equalEndsHaveOneValue()
{
    const SliderRig rig(DvSlider::Int32Kind, {5, 5, 5});
    rig.thumb->setFocus();
    QTest::keyClick(rig.thumb, Qt::Key_Right);
    QCOMPARE(rig.integer().value(), 5);
    QCOMPARE(rig.calls, QStringList());
}

void tst_DvIntSlider::numbersAreTypedInEveryLanguage_data()
{
    QTest::addColumn<QByteArray>("language");
    for (const QByteArray& language : UserLanguage::tested())
        QTest::newRow(language.constData()) << language;
}

void tst_DvIntSlider::numbersAreTypedInEveryLanguage()
{
    QFETCH(QByteArray, language);
    const UserLanguage user(language);
    const SliderRig rig(DvSlider::Int32Kind, {0, 100, 7});
    rig.enter("12345");
    rig.enter("-54321");
    QCOMPARE(rig.calls, QStringList({"commit 12345", "commit -54321"}));
    QCOMPARE(rig.line->text(), QString("-54321"));
}

TAVRIK_TEST_MAIN(tst_DvIntSlider)
#include "tst_DvIntSlider.moc"
