#include "tests/support/SliderRig.h"
#include "tests/support/TestMain.h"
#include "tests/support/UserLanguage.h"

#include <QDoubleValidator>

#include <limits>

namespace {

using Double = std::numeric_limits<double>;
constexpr int s_float = DvSlider::FloatKind;
constexpr int s_double = DvSlider::DoubleKind;
constexpr double s_largestFloat = 3.4028234663852886e+38;
constexpr double s_largestDouble = 1.7976931348623157e+308;

struct Entry
{
    int kind;
    const char* typed;
    double value;
    const char* shown;
};

/** What is typed, key by key, into a slider at 7. */
const Entry s_entries[] = {
    {s_float, "2.5", 2.5, "2.500000"},
    {s_float, "1,5", 1.5, "1.500000"},
    {s_float, "-5", -5.0, "-5.000000"},
    {s_float, "+5", 5.0, "5.000000"},
    {s_float, "1e2", 100.0, "100.000000"},
    {s_float, "1e39", s_largestFloat, "340282346638528859811704183484516925440.000000"},
    {s_float, "-1e39", -s_largestFloat, "-340282346638528859811704183484516925440.000000"},
    {s_float, "1e400", s_largestFloat, "340282346638528859811704183484516925440.000000"},
    {s_double, "2.5", 2.5, "2.5"},
    {s_double, "1,5", 1.5, "1.5"},
    {s_double, "0.1", 0.1, "0.1"},
    {s_double, "1e-7", 1e-7, "1e-07"},
    {s_double, "1e39", 1e39, "1e+39"},
    {s_double, "1e400", s_largestDouble, "1.79769313486232e+308"},
    {s_double, "-1e400", -s_largestDouble, "-1.79769313486232e+308"},
};

void addEntries()
{
    QTest::addColumn<int>("entry");
    int number = 0;
    for (const Entry& entry : s_entries)
        QTest::addRow("%s %s", entry.kind == s_float ? "float" : "double", entry.typed) << number++;
}

void addKinds()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("float") << s_float;
    QTest::newRow("double") << s_double;
}

const QDoubleValidator& validatorOf(const SliderRig& rig)
{
    return *qobject_cast<const QDoubleValidator*>(rig.line->validator());
}

/** Writes a text into the line that cannot be typed, as one that waits for Return. */
void forceEntry(const SliderRig& rig, const char* text)
{
    rig.line->setText(QString::fromLatin1(text));
    rig.line->setModified(true);
    rig.slider->changeValueFromEdit();
}

} // namespace

class tst_DvRealSlider : public QObject
{
    Q_OBJECT

private slots:
    void whatIsTypedIsTakenAndShown_data() { addEntries(); }
    void whatIsTypedIsTakenAndShown();
    void aNumberIsTypedAlikeInEveryLanguage_data();
    void aNumberIsTypedAlikeInEveryLanguage();
    void aTextThatIsNoNumberIsZero_data() { addKinds(); }
    void aTextThatIsNoNumberIsZero();
    void leavingAnUnfinishedNumberShowsTheValueAgain_data() { addKinds(); }
    void leavingAnUnfinishedNumberShowsTheValueAgain();
    void anOpenRangeGrowsAndTheThumbSitsAtItsEnd();
    void aRangeGrowsUntilItIsSetAgain();
    void aStrictRangeClampsWhatIsEntered();
    void theValidatorHasTheLimitsAndDecimalsOfTheType();
    void theValidatorIsWideAgainAfterAStrictRange();
    void endsThatAreNoNumbersOrTurnedRoundAreIgnored();
    void equalEndsHaveOnePosition();
    void keepsTheThumbOnHundredthsOfTheRange();
};

void tst_DvRealSlider::whatIsTypedIsTakenAndShown()
{
    QFETCH(int, entry);
    const Entry& e = s_entries[entry];
    const SliderRig rig(e.kind, {0, 10, 7});
    rig.enter(QString::fromLatin1(e.typed));
    QCOMPARE(rig.real().value(), e.value);
    QCOMPARE(rig.line->text(), QString::fromLatin1(e.shown));
    QCOMPARE(rig.calls.size(), 1);
}

void tst_DvRealSlider::aNumberIsTypedAlikeInEveryLanguage_data()
{
    QTest::addColumn<QByteArray>("language");
    for (const QByteArray& language : UserLanguage::tested())
        QTest::newRow(language.constData()) << language;
}

void tst_DvRealSlider::aNumberIsTypedAlikeInEveryLanguage()
{
    QFETCH(QByteArray, language);
    const UserLanguage user(language);
    for (const char* typed : {"1234.5", "1234,5"}) {
        const SliderRig rig(s_double, {0, 10, 0.25});
        QCOMPARE(rig.line->text(), QString("0.25"));
        rig.enter(typed);
        QCOMPARE(rig.calls, QStringList("commit 1234.5"));
        QCOMPARE(rig.line->text(), QString("1234.5"));
    }
}

void tst_DvRealSlider::aTextThatIsNoNumberIsZero()
{
    QFETCH(int, kind);
    for (const char* text : {"", "-", "abc", "1.5.2"}) {
        const SliderRig rig(kind, {0, 10, 7});
        forceEntry(rig, text);
        QCOMPARE(rig.real().value(), 0.0);
        QCOMPARE(rig.calls.size(), 1);
    }
}

void tst_DvRealSlider::leavingAnUnfinishedNumberShowsTheValueAgain()
{
    QFETCH(int, kind);
    for (const char* text : {"", "-", "1e"}) {
        const SliderRig rig(kind, {0, 10, 7});
        rig.type(QString::fromLatin1(text));
        rig.leave();
        QCOMPARE(rig.calls, QStringList("revert"));
        QCOMPARE(rig.line->text().toDouble(), 7.0);
        QVERIFY(!rig.slider->hasPendingEdit());
    }
}

void tst_DvRealSlider::anOpenRangeGrowsAndTheThumbSitsAtItsEnd()
{
    for (const bool typed : {false, true}) {
        const SliderRig rig(s_float, {0, 10, 5});
        QCOMPARE(rig.thumb->value(), 50);
        if (typed)
            rig.enter("25");
        else
            rig.real().setValue(25);
        QCOMPARE(rig.real().maximum(), 25.0);
        QCOMPARE(rig.thumb->minimum(), 0);
        QCOMPARE(rig.thumb->maximum(), 100);
        QCOMPARE(rig.thumb->value(), 100);
    }
}

void tst_DvRealSlider::aRangeGrowsUntilItIsSetAgain()
{
    const SliderRig rig(s_double, {0, 10, 25});
    rig.real().setValue(-15);
    rig.real().setValue(5);
    QCOMPARE(rig.real().minimum(), -15.0);
    QCOMPARE(rig.real().maximum(), 25.0);
    QCOMPARE(rig.thumb->value(), 50);
    rig.real().setRange(0, 10, false);
    QCOMPARE(rig.real().minimum(), 0.0);
    QCOMPARE(rig.real().maximum(), 10.0);
    QCOMPARE(rig.thumb->value(), 50);
    QCOMPARE(rig.calls, QStringList());
}

void tst_DvRealSlider::aStrictRangeClampsWhatIsEntered()
{
    const SliderRig rig(s_float, {0, 10, 0.5});
    rig.real().setRange(0, 1, true);
    rig.enter("2");
    QCOMPARE(rig.real().value(), 1.0);
    QCOMPARE(rig.line->text(), QString("1.000000"));
    rig.type("-5");
    rig.leave();
    QCOMPARE(rig.real().value(), 0.0);
    QCOMPARE(rig.real().minimum(), 0.0);
    QCOMPARE(rig.real().maximum(), 1.0);
    QCOMPARE(rig.calls, QStringList({"commit 1.000000", "commit 0.000000"}));
}

void tst_DvRealSlider::theValidatorHasTheLimitsAndDecimalsOfTheType()
{
    const SliderRig single(s_float);
    QCOMPARE(validatorOf(single).bottom(), -s_largestFloat);
    QCOMPARE(validatorOf(single).top(), s_largestFloat);
    QCOMPARE(validatorOf(single).decimals(), 6);
    const SliderRig twice(s_double);
    QCOMPARE(validatorOf(twice).bottom(), -s_largestDouble);
    QCOMPARE(validatorOf(twice).top(), s_largestDouble);
    QCOMPARE(validatorOf(twice).decimals(), 15);
}

void tst_DvRealSlider::theValidatorIsWideAgainAfterAStrictRange()
{
    const SliderRig rig(s_float, {0, 10, 0.5});
    rig.real().setRange(0, 1, true);
    QVERIFY(rig.real().isBounded());
    QCOMPARE(validatorOf(rig).bottom(), 0.0);
    QCOMPARE(validatorOf(rig).top(), 1.0);
    rig.real().setRange(0, 10, false);
    QVERIFY(!rig.real().isBounded());
    QCOMPARE(validatorOf(rig).bottom(), -s_largestFloat);
    QCOMPARE(validatorOf(rig).top(), s_largestFloat);
    rig.enter("-25");
    QCOMPARE(rig.real().value(), -25.0);
}

void tst_DvRealSlider::endsThatAreNoNumbersOrTurnedRoundAreIgnored()
{
    const SliderRig rig(s_double, {0, 10, 5});
    const double infinity = Double::infinity();
    const double none = Double::quiet_NaN();
    for (const auto& ends : {std::pair(0.0, infinity), std::pair(-infinity, 0.0),
                             std::pair(none, 1.0), std::pair(0.0, none), std::pair(2.0, 1.0)}) {
        rig.real().setRange(ends.first, ends.second, true);
        QCOMPARE(rig.real().minimum(), 0.0);
        QCOMPARE(rig.real().maximum(), 10.0);
        QVERIFY(!rig.real().isBounded());
        QCOMPARE(rig.thumb->value(), 50);
    }
}

void tst_DvRealSlider::equalEndsHaveOnePosition()
{
    const SliderRig rig(s_double, {5, 5, 5});
    QCOMPARE(rig.thumb->value(), 0);
    rig.pressAndRelease();
    rig.thumb->setValue(70);
    QCOMPARE(rig.real().value(), 5.0);
}

void tst_DvRealSlider::keepsTheThumbOnHundredthsOfTheRange()
{
    const SliderRig rig(s_float, {0, 10, 3.14159});
    QCOMPARE(rig.thumb->value(), 31);
    rig.thumb->setFocus();
    QTest::keyClick(rig.thumb, Qt::Key_Right);
    QCOMPARE(rig.line->text(), QString("3.200000"));
    QCOMPARE(rig.real().value(), double(3.2F));
}

TAVRIK_TEST_MAIN(tst_DvRealSlider)
#include "tst_DvRealSlider.moc"
