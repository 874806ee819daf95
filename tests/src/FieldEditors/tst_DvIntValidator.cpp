#include "FieldEditors/DvIntValidator.h"

#include "tests/support/TestMain.h"
#include "tests/support/UserLanguage.h"

namespace {

constexpr auto s_good = QValidator::Acceptable;
constexpr auto s_open = QValidator::Intermediate;
constexpr auto s_bad = QValidator::Invalid;

struct Verdict
{
    const char* text;
    QValidator::State state;
};

/** Of a validator of 16 bits. */
const Verdict s_verdicts[] = {
    {"", s_open},        {"-", s_open},       {"+", s_open},
    {"5", s_good},       {"-5", s_good},      {"+5", s_good},
    {"32767", s_good},   {"-32768", s_good},  {"32768", s_good},
    {"-32769", s_good},  {"40000", s_good},   {"-40000", s_good},
    {"100000", s_good},  {"-100000", s_good}, {"99999999999999999999", s_good},
    {"abc", s_bad},      {"0x1F", s_bad},     {"1F", s_bad},
    {"1,5", s_bad},      {"1,000", s_bad},    {"1.5", s_bad},
    {"1 000", s_bad},    {"--5", s_bad},      {"5-", s_bad},
    {"\xd9\xa1", s_bad}, // the Arabic digit one
};

} // namespace

class tst_DvIntValidator : public QObject
{
    Q_OBJECT

private slots:
    void itsLimitsAreThoseOf32BitsAtFirst()
    {
        const DvIntValidator validator(nullptr);
        QCOMPARE(validator.bottom(), std::numeric_limits<int>::min());
        QCOMPARE(validator.top(), std::numeric_limits<int>::max());
    }

    void aNumberBeyondTheLimitsIsAcceptedInEveryLanguage_data()
    {
        QTest::addColumn<QByteArray>("language");
        for (const QByteArray& language : UserLanguage::tested())
            QTest::newRow(language.constData()) << language;
    }
    void aNumberBeyondTheLimitsIsAcceptedInEveryLanguage()
    {
        QFETCH(QByteArray, language);
        const UserLanguage user(language);
        DvIntValidator validator(nullptr);
        validator.setRange(-32768, 32767);
        for (const Verdict& verdict : s_verdicts) {
            QString text = QString::fromUtf8(verdict.text);
            int position = 0;
            QVERIFY2(validator.validate(text, position) == verdict.state, verdict.text);
            QCOMPARE(text, QString::fromUtf8(verdict.text));
        }
    }
};

TAVRIK_TEST_MAIN(tst_DvIntValidator)
#include "tst_DvIntValidator.moc"
