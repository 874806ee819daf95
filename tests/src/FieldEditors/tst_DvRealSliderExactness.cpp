#include "tests/support/SliderRig.h"
#include "tests/support/TestMain.h"

#include <Inventor/fields/SoSFFloat.h>

#include <QRandomGenerator>

#include <cmath>
#include <cstring>
#include <limits>

namespace {

using Double = std::numeric_limits<double>;
using Float = std::numeric_limits<float>;
constexpr int s_float = DvSlider::FloatKind;
constexpr int s_double = DvSlider::DoubleKind;
constexpr int s_rounds = 10000;

bool sameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof(a)) == 0;
}

/** Any pattern of bits that is a finite number of the type. */
template <class Number, class Bits>
double randomNumber(QRandomGenerator& random)
{
    for (;;) {
        const auto bits = static_cast<Bits>(random.generate64());
        Number number = 0;
        static_assert(sizeof(number) == sizeof(bits));
        std::memcpy(&number, &bits, sizeof(number));
        if (std::isfinite(number))
            return static_cast<double>(number);
    }
}

double randomOfKind(int kind, QRandomGenerator& random)
{
    return kind == s_float ? randomNumber<float, quint32>(random)
                           : randomNumber<double, quint64>(random);
}

double ordinary(QRandomGenerator& random)
{
    return (random.generateDouble() - 0.5) * 2000.0;
}

int positionByFormula(double value, double minimum, double maximum)
{
    return static_cast<int>((value - minimum) * 100 / (maximum - minimum) + 0.5);
}

double valueByFormula(int position, double minimum, double maximum)
{
    return (maximum - minimum) * position / 100 + minimum;
}

void addKinds()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("float") << s_float;
    QTest::newRow("double") << s_double;
}

} // namespace

/** A value is what the user has chosen, to the last bit: only a move or a text changes it. */
class tst_DvRealSliderExactness : public QObject
{
    Q_OBJECT

private slots:
    void aValueStaysExactWhereTextAndThumbRoundIt_data() { addKinds(); }
    void aValueStaysExactWhereTextAndThumbRoundIt();
    void aValueSurvivesEveryRange_data() { addKinds(); }
    void aValueSurvivesEveryRange();
    void typingTheShownTextGivesWhatItSays();
    void theTextOfTheValueIsReadBackExactly_data() { addKinds(); }
    void theTextOfTheValueIsReadBackExactly();
    void theFieldReadsTheTextOfAFloatBack();
    void theTextOfTheLargestDoubleIsReadBack();
    void aSmallValueIsNotLostByAPress();
    void thePositionFollowsTheFormula();
    void theValueFollowsTheFormula();
    void theEndsOfTheRangeAreExact();
    void theLargestRangeHasAMiddle();
    void aRangeOfTheSmallestNumbersHasPositions();
    void valuesThatAreNoNumbersAreShownAndKept_data() { addKinds(); }
    void valuesThatAreNoNumbersAreShownAndKept();
};

void tst_DvRealSliderExactness::aValueStaysExactWhereTextAndThumbRoundIt()
{
    QFETCH(int, kind);
    SliderRig rig(kind);
    QRandomGenerator random(1);
    for (int i = 0; i < s_rounds; ++i) {
        const double value = randomOfKind(kind, random);
        rig.show(0, 10, value);
        rig.pressAndRelease();
        QVERIFY(sameBits(rig.real().value(), value));
        QCOMPARE(rig.takeCalls().size(), 1);
        rig.slider->revertPendingEdit();
        rig.slider->takePendingEdit();
        QVERIFY(sameBits(rig.real().value(), value));
    }
}

void tst_DvRealSliderExactness::aValueSurvivesEveryRange()
{
    QFETCH(int, kind);
    const SliderRig rig(kind, {0, 10, 3.14159274101257324});
    QRandomGenerator random(2);
    for (int i = 0; i < 200; ++i) {
        const double one = ordinary(random);
        const double two = ordinary(random);
        rig.real().setRange(std::min(one, two), std::max(one, two), i % 2 == 0);
        rig.pressAndRelease();
        QVERIFY(sameBits(rig.real().value(), 3.14159274101257324));
        QCOMPARE(rig.line->text().left(7), QString("3.14159"));
    }
}

void tst_DvRealSliderExactness::typingTheShownTextGivesWhatItSays()
{
    const SliderRig rig(s_float, {0, 10, 3.14159274101257324});
    QCOMPARE(rig.line->text(), QString("3.141593"));
    rig.enter(rig.line->text());
    QVERIFY(sameBits(rig.real().value(), static_cast<double>(3.141593F)));
    QCOMPARE(rig.calls.size(), 1);
}

void tst_DvRealSliderExactness::theTextOfTheValueIsReadBackExactly()
{
    QFETCH(int, kind);
    const SliderRig rig(kind);
    QRandomGenerator random(3);
    for (int i = 0; i < s_rounds; ++i) {
        const double value = i % 2 ? randomOfKind(kind, random)
                                   : static_cast<double>(static_cast<float>(ordinary(random)));
        rig.show(0, 10, value);
        const QString text = rig.slider->valueText();
        const double read = kind == s_float ? static_cast<double>(text.toFloat()) : text.toDouble();
        QVERIFY2(sameBits(read, value), qPrintable(text));
    }
}

void tst_DvRealSliderExactness::theFieldReadsTheTextOfAFloatBack()
{
    const SliderRig rig(s_float);
    QRandomGenerator random(4);
    for (int i = 0; i < s_rounds; ++i) {
        const double value = static_cast<double>(static_cast<float>(ordinary(random)));
        rig.show(0, 10, value);
        SoSFFloat field;
        QVERIFY(field.set(rig.slider->valueText().toLatin1().constData()));
        QVERIFY(sameBits(static_cast<double>(field.getValue()), value));
    }
}

void tst_DvRealSliderExactness::theTextOfTheLargestDoubleIsReadBack()
{
    for (const double value : {Double::max(), -Double::max()}) {
        const SliderRig rig(s_double, {0, 10, value});
        QVERIFY(sameBits(rig.slider->valueText().toDouble(), value));
    }
}

void tst_DvRealSliderExactness::aSmallValueIsNotLostByAPress()
{
    SliderRig rig(s_float, {0, 10, static_cast<double>(1e-7F)});
    QCOMPARE(rig.line->text(), QString("0.000000"));
    rig.pressAndRelease();
    QCOMPARE(rig.real().value(), static_cast<double>(1e-7F));
    QCOMPARE(rig.takeCalls(), QStringList("commit 1.00000001e-07 (was 1.00000001e-07)"));
    rig.enter("2e-7");
    QCOMPARE(rig.real().value(), static_cast<double>(2e-7F));
    QCOMPARE(rig.line->text(), QString("0.000000"));
}

void tst_DvRealSliderExactness::thePositionFollowsTheFormula()
{
    const SliderRig rig(s_double);
    QRandomGenerator random(5);
    for (int i = 0; i < s_rounds; ++i) {
        const double minimum = ordinary(random);
        const double maximum = minimum + random.generateDouble() * 1000.0 + 1e-3;
        const double value = minimum + random.generateDouble() * (maximum - minimum);
        rig.show(minimum, maximum, value);
        QCOMPARE(rig.thumb->value(), positionByFormula(value, minimum, maximum));
    }
}

void tst_DvRealSliderExactness::theValueFollowsTheFormula()
{
    const SliderRig rig(s_double);
    QRandomGenerator random(6);
    for (int i = 0; i < s_rounds; ++i) {
        const double minimum = ordinary(random);
        const double maximum = minimum + random.generateDouble() * 1000.0 + 1e-3;
        rig.show(minimum, maximum, minimum);
        const int position = random.bounded(1, 100);
        rig.thumb->setValue(position);
        QCOMPARE(rig.real().value(), valueByFormula(position, minimum, maximum));
        rig.real().setValue(rig.real().value());
        QCOMPARE(rig.thumb->value(), position);
    }
}

void tst_DvRealSliderExactness::theEndsOfTheRangeAreExact()
{
    const SliderRig rig(s_double);
    QRandomGenerator random(7);
    for (int i = 0; i < s_rounds; ++i) {
        const double one = randomOfKind(s_double, random);
        const double two = randomOfKind(s_double, random);
        rig.show(std::min(one, two), std::max(one, two), std::min(one, two));
        rig.thumb->setValue(100);
        QVERIFY(rig.real().value() <= std::max(one, two));
        rig.thumb->setValue(0);
        QVERIFY(sameBits(rig.real().value(), std::min(one, two)));
    }
}

void tst_DvRealSliderExactness::theLargestRangeHasAMiddle()
{
    const double largest = Double::max();
    const SliderRig rig(s_double, {-largest, largest, 0});
    QCOMPARE(rig.thumb->value(), 50);
    rig.real().setValue(largest);
    QCOMPARE(rig.thumb->value(), 100);
    rig.real().setValue(-largest);
    QCOMPARE(rig.thumb->value(), 0);
    rig.thumb->setValue(50);
    QCOMPARE(rig.real().value(), 0.0);
    rig.thumb->setValue(100);
    QCOMPARE(rig.real().value(), largest);
    rig.thumb->setValue(0);
    QCOMPARE(rig.real().value(), -largest);
    rig.thumb->setValue(75);
    QVERIFY(std::abs(rig.real().value() / (largest / 2) - 1.0) < 1e-12);
}

void tst_DvRealSliderExactness::aRangeOfTheSmallestNumbersHasPositions()
{
    const double smallest = Double::denorm_min();
    const SliderRig rig(s_double, {0, smallest * 4, smallest});
    QCOMPARE(rig.thumb->value(), 25);
    rig.thumb->setValue(50);
    QCOMPARE(rig.real().value(), smallest * 2);
    const double smallestFloat = static_cast<double>(Float::denorm_min());
    const SliderRig single(s_float, {0, smallestFloat * 4, smallestFloat});
    single.thumb->setValue(75);
    QCOMPARE(single.real().value(), smallestFloat * 3);
}

void tst_DvRealSliderExactness::valuesThatAreNoNumbersAreShownAndKept()
{
    QFETCH(int, kind);
    const double infinity = Double::infinity();
    const SliderRig rig(kind, {0, 10, 5});
    for (const double value : {infinity, -infinity, Double::quiet_NaN()}) {
        rig.real().setValue(value);
        QCOMPARE(rig.real().minimum(), 0.0);
        QCOMPARE(rig.real().maximum(), 10.0);
        QCOMPARE(rig.thumb->value(), value == infinity ? 100 : 0);
        QCOMPARE(rig.line->text(), QString::number(value));
        rig.pressAndRelease();
        QVERIFY(sameBits(rig.real().value(), value));
        rig.line->setFocus();
        rig.leave();
    }
    QCOMPARE(rig.calls.size(), 3);
    rig.enter("4");
    QCOMPARE(rig.real().value(), 4.0);
}

TAVRIK_TEST_MAIN(tst_DvRealSliderExactness)
#include "tst_DvRealSliderExactness.moc"
