#include "FieldEditors/DvIntegerText.h"

#include "tests/support/TestMain.h"
#include "tests/support/UserLanguage.h"

#include <QRandomGenerator>

#include <limits>

namespace {

using Limits = std::numeric_limits<qint64>;

struct Text
{
    const char* text;
    int base; ///< that its beginning announces
    const char* stripped;
};

const Text s_texts[] = {
    {"", 10, ""},           {"0", 10, "0"},     {"5", 10, "5"},     {"-5", 10, "-5"},
    {"00", 8, "0"},         {"08", 8, "8"},     {"017", 8, "17"},   {"0x", 8, "x"},
    {"0x1F", 16, "1F"},     {"0xg", 16, "g"},   {"0X1F", 8, "X1F"}, {"-0x1F", 10, "-0x1F"},
    {" 0x1F", 10, " 0x1F"}, {"abc", 10, "abc"}, {"1F", 10, "1F"},
};

struct Number
{
    const char* text;
    int base;
    std::optional<qint64> value;
};

const Number s_numbers[] = {
    {"31", 10, 31},
    {"-31", 10, -31},
    {"+31", 10, 31},
    {" 31 ", 10, 31},
    {"1F", 16, 31},
    {"1f", 16, 31},
    {"0x1F", 16, 31},
    {"-1F", 16, -31},
    {"37", 8, 31},
    {"037", 8, 31},
    {"-37", 8, -31},
    {"9223372036854775807", 10, Limits::max()},
    {"9223372036854775808", 10, Limits::max()},
    {"99999999999999999999", 10, Limits::max()},
    {"-99999999999999999999", 10, Limits::min()},
    {"+99999999999999999999", 10, Limits::max()},
    {"FFFFFFFFFFFFFFFFFFFF", 16, Limits::max()},
    {"0xFFFFFFFFFFFFFFFFFFFF", 16, Limits::max()},
    {"-7777777777777777777777777", 8, Limits::min()},
    {"", 10, std::nullopt},
    {"-", 10, std::nullopt},
    {"0x", 16, std::nullopt},
    {"1F", 10, std::nullopt},
    {"8", 8, std::nullopt},
    {"99999999999999999999", 8, std::nullopt},
    {"99999999999999999999x", 10, std::nullopt},
    {"--99999999999999999999", 10, std::nullopt},
    {"1,5", 10, std::nullopt},
    {"1.5", 10, std::nullopt},
    {"1 000", 10, std::nullopt},
    {"\xd9\xa1", 10, std::nullopt}, // the Arabic digit one
};

} // namespace

class tst_DvIntegerText : public QObject
{
    Q_OBJECT

private slots:
    void theBeginningAnnouncesTheBase()
    {
        for (const Text& text : s_texts) {
            QVERIFY2(DvIntegerText::baseOf(QString::fromLatin1(text.text)) == text.base, text.text);
            QCOMPARE(DvIntegerText::withoutPrefix(QString::fromLatin1(text.text), text.base),
                     QString::fromLatin1(text.stripped));
        }
    }

    void onlyThePrefixOfTheBaseIsTakenOff()
    {
        QCOMPARE(DvIntegerText::withoutPrefix("1F", 16), QString("1F"));
        QCOMPARE(DvIntegerText::withoutPrefix("01F", 16), QString("01F"));
        QCOMPARE(DvIntegerText::withoutPrefix("17", 8), QString("17"));
        QCOMPARE(DvIntegerText::withoutPrefix("0x1F", 10), QString("0x1F"));
    }

    void aNumberIsReadInItsBaseInEveryLanguage_data()
    {
        QTest::addColumn<QByteArray>("language");
        for (const QByteArray& language : UserLanguage::tested())
            QTest::newRow(language.constData()) << language;
    }
    void aNumberIsReadInItsBaseInEveryLanguage()
    {
        QFETCH(QByteArray, language);
        const UserLanguage user(language);
        for (const Number& number : s_numbers)
            QVERIFY2(DvIntegerText::parse(QString::fromUtf8(number.text), number.base) ==
                         number.value,
                     number.text);
    }

    void aSignStandsBeforeTheDigitsInEveryBase()
    {
        QCOMPARE(DvIntegerText::format(-31, 16), QString("-1F"));
        QCOMPARE(DvIntegerText::format(-31, 8), QString("-37"));
        QCOMPARE(DvIntegerText::format(-31, 10), QString("-31"));
        QCOMPARE(DvIntegerText::format(255, 16), QString("FF"));
        QCOMPARE(DvIntegerText::format(0, 16), QString("0"));
    }

    void everyWrittenNumberIsReadBack()
    {
        QRandomGenerator random(20);
        for (int i = 0; i < 10000; ++i) {
            const auto value = static_cast<int>(random.generate());
            for (const int base : {8, 10, 16})
                QVERIFY(DvIntegerText::parse(DvIntegerText::format(value, base), base) == value);
        }
    }
};

TAVRIK_TEST_MAIN(tst_DvIntegerText)
#include "tst_DvIntegerText.moc"
