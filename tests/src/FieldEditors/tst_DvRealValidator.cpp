#include "FieldEditors/DvRealValidator.h"

#include "tests/support/TestMain.h"
#include "tests/support/UserLanguage.h"

#include <QLineEdit>

namespace {

struct Verdict
{
    const char* given;
    QValidator::State state;
    const char* left; ///< the text as the validator leaves it
};

constexpr auto s_good = QValidator::Acceptable;
constexpr auto s_open = QValidator::Intermediate;
constexpr auto s_bad = QValidator::Invalid;

const Verdict s_verdicts[] = {
    {"", s_open, ""},
    {"-", s_open, "-"},
    {"1", s_good, "1"},
    {"-1.5", s_good, "-1.5"},
    {".5", s_good, ".5"},
    {"1.123456", s_good, "1.123456"},
    {"1.1234567", s_bad, "1.1234567"}, // six decimals
    {"0.1234567", s_bad, "0.1234567"},
    {"0.000123457", s_good, "0.000123457"}, // six digits, as a small number is shown
    {"-0.0000001", s_good, "-0.0000001"},
    {"0.00012345678", s_bad, "0.00012345678"},
    {"1e5", s_good, "1e5"},
    {"1e", s_open, "1e"},
    {"1E-7", s_good, "1E-7"},
    {"3.4e38", s_good, "3.4e38"},
    {"3.5e38", s_open, "3.5e38"}, // beyond single precision
    {"-3.5e38", s_open, "-3.5e38"},
    {"abc", s_bad, "abc"},
    {"nan", s_bad, "nan"},
    {"inf", s_bad, "inf"},
    {"1 000", s_bad, "1 000"},
    {"1'000", s_bad, "1'000"},
    {"1\xc2\xa0"
     "000",
     s_bad,
     "1\xc2\xa0"
     "000"},
    {"\xd9\xa1", s_bad, "\xd9\xa1"},         // the Arabic digit one
    {"\xe0\xa5\xa7", s_bad, "\xe0\xa5\xa7"}, // the Devanagari digit one
    {"1\xd9\xab"
     "5",
     s_bad,
     "1\xd9\xab"
     "5"}, // the Arabic decimal separator

    {"1,5", s_good, "1.5"},
    {"1,", s_good, "1."},
    {",5", s_good, ".5"},
    {"-0,25", s_good, "-0.25"},
    {"1,0000", s_good, "1.0000"},
    {"1,1234567", s_bad, "1.1234567"},
    {"1,5e2", s_good, "1.5e2"},
    // No thousands are written like these.
    {"0,125", s_good, "0.125"},
    {"1234,567", s_good, "1234.567"},
    // Thousands, or decimals: nobody can tell.
    {"1,000", s_bad, "1,000"},
    {"-12,345", s_bad, "-12,345"},
    {"123,456", s_bad, "123,456"},
    {"1,000e3", s_bad, "1,000e3"},
    {"1,000,000", s_bad, "1,000,000"},
    {"1,000.5", s_bad, "1,000.5"},
    {"1.5,2", s_bad, "1.5,2"},
};

/** What is typed into an empty line, key by key, and what stands there then. */
const char* const s_typed[][2] = {
    {"3.25", "3.25"},          {"3,25", "3.25"}, {"-0,5", "-0.5"}, {"1,000", "1.000"},
    {"1,2345678", "1.234567"}, {"1e-7", "1e-7"}, {"12abc", "12"},  {"1.2.3", "1.23"},
    {"1,2,3", "1.23"},         {"1 2", "12"},    {"--1", "-1"},    {",75", ".75"},
};

void addLanguages()
{
    QTest::addColumn<QByteArray>("language");
    for (const QByteArray& language : UserLanguage::tested())
        QTest::newRow(language.constData()) << language;
}

} // namespace

class tst_DvRealValidator : public QObject
{
    Q_OBJECT

private slots:
    void theVerdictIsTheSameInEveryLanguage_data() { addLanguages(); }
    void theVerdictIsTheSameInEveryLanguage();
    void whatIsTypedStaysTheSameInEveryLanguage_data() { addLanguages(); }
    void whatIsTypedStaysTheSameInEveryLanguage();
    void whatIsPastedIsRefusedAsAWhole();
    void aCommaTypedIntoALargeNumberIsRefused();
    void limitsOfItsOwnAreKept();
    void theLimitsOfAFloatAreAccepted();
    void decimalsOfItsOwnAreKept();
};

void tst_DvRealValidator::theVerdictIsTheSameInEveryLanguage()
{
    QFETCH(QByteArray, language);
    const UserLanguage user(language);
    if (!user.isInstalled())
        QSKIP("The C library lacks this language.");
    const DvRealValidator validator(nullptr);
    for (const Verdict& verdict : s_verdicts) {
        QString text = QString::fromUtf8(verdict.given);
        int position = text.size();
        const QValidator::State state = validator.validate(text, position);
        QVERIFY2(state == verdict.state, verdict.given);
        QCOMPARE(text.toUtf8(), QByteArray(verdict.left));
    }
}

void tst_DvRealValidator::whatIsTypedStaysTheSameInEveryLanguage()
{
    QFETCH(QByteArray, language);
    const UserLanguage user(language);
    if (!user.isInstalled())
        QSKIP("The C library lacks this language.");
    for (const auto& typed : s_typed) {
        QLineEdit line;
        line.setValidator(new DvRealValidator(&line));
        QTest::keyClicks(&line, QLatin1String(typed[0]));
        QCOMPARE(line.text(), QString::fromLatin1(typed[1]));
    }
}

void tst_DvRealValidator::whatIsPastedIsRefusedAsAWhole()
{
    QLineEdit line;
    line.setValidator(new DvRealValidator(&line));
    line.insert(QStringLiteral("1,000"));
    QCOMPARE(line.text(), QString());
    line.insert(QStringLiteral("1,5"));
    QCOMPARE(line.text(), QStringLiteral("1.5"));
}

void tst_DvRealValidator::aCommaTypedIntoALargeNumberIsRefused()
{
    QLineEdit line;
    line.setValidator(new DvRealValidator(&line));
    line.setText(QStringLiteral("1000"));
    line.setCursorPosition(1);
    QTest::keyClicks(&line, QStringLiteral(","));
    QCOMPARE(line.text(), QStringLiteral("1000"));
}

void tst_DvRealValidator::limitsOfItsOwnAreKept()
{
    const DvRealValidator validator(0.0, 1.0, 3, nullptr);
    int position = 0;
    QString inside = QStringLiteral("0,5");
    QCOMPARE(validator.validate(inside, position), s_good);
    QString above = QStringLiteral("2");
    QCOMPARE(validator.validate(above, position), s_open);
    QString below = QStringLiteral("-1");
    QCOMPARE(validator.validate(below, position), s_bad);
}

void tst_DvRealValidator::theLimitsOfAFloatAreAccepted()
{
    const DvRealValidator validator(nullptr);
    const double largest = static_cast<double>(std::numeric_limits<float>::max());
    QCOMPARE(validator.top(), largest);
    QCOMPARE(validator.bottom(), -largest);
    QCOMPARE(validator.decimals(), 6);
    int position = 0;
    QString text = QStringLiteral("3.402823e+38");
    QCOMPARE(validator.validate(text, position), s_good);
}

void tst_DvRealValidator::decimalsOfItsOwnAreKept()
{
    const DvRealValidator validator(-10.0, 10.0, 2, nullptr);
    int position = 0;
    QString two = QStringLiteral("1.25");
    QCOMPARE(validator.validate(two, position), s_good);
    QString three = QStringLiteral("1.255");
    QCOMPARE(validator.validate(three, position), s_bad);
}

TAVRIK_TEST_MAIN(tst_DvRealValidator)
#include "tst_DvRealValidator.moc"
