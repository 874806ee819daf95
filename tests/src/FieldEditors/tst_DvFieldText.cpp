#include "FieldEditors/DvFieldText.h"

#include "tests/support/TestMain.h"
#include "tests/support/UserLanguage.h"

#include <limits>

namespace {

void addLanguages()
{
    QTest::addColumn<QByteArray>("language");
    for (const QByteArray& language : UserLanguage::tested())
        QTest::newRow(language.constData()) << language;
}

} // namespace

class tst_DvFieldText : public QObject
{
    Q_OBJECT

private slots:
    void coinsBytesAreShown_data();
    void coinsBytesAreShown();
    void whatIsTypedBecomesUtf8AndComesBack_data();
    void whatIsTypedBecomesUtf8AndComesBack();
    void aLongTextIsShownWhole();
    void numbersAreInGeneralNotation_data();
    void numbersAreInGeneralNotation();
    void minusZeroShowsAsZero();
    void moreDigitsAreShownWhereTheyAreWanted();
    void numbersAreTheSameInEveryLanguage_data() { addLanguages(); }
    void numbersAreTheSameInEveryLanguage();
    void floatsAreRead_data();
    void floatsAreRead();
};

void tst_DvFieldText::coinsBytesAreShown_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("shown");
    const auto add = [](const char* row, const char* bytes, const QString& shown) {
        QTest::newRow(row) << QByteArray(bytes) << shown;
    };
    add("empty", "", QString());
    add("ASCII", "abc", QStringLiteral("abc"));
    add("quotes", "\"say \\\"hello\\\"\"", QStringLiteral("\"say \\\"hello\\\"\""));
    add("line break", "a\nb\t", QStringLiteral("a\nb\t"));
    add("UTF-8", "\xc3\xa4 \xe2\x82\xac \xf0\x9d\x84\x9e",
        QStringLiteral(u"\u00e4 \u20ac \U0001d11e"));
    add("byte order mark",
        "\xef\xbb\xbf"
        "a",
        QStringLiteral(u"\ufeff"
                       "a"));
    add("replacement character", "\xef\xbf\xbd", QStringLiteral(u"\ufffd"));
    add("Latin-1", "gr\xfcn", QStringLiteral(u"gr\u00fcn"));
    add("Latin-1 at the end", "caf\xe9", QStringLiteral(u"caf\u00e9"));
    add("overlong", "\xc0\x80", QStringLiteral(u"\u00c0\u0080"));
    add("half of a pair", "\xed\xa0\x80", QStringLiteral(u"\u00ed\u00a0\u0080"));
    add("both", "\xc3\xa4 \xfc", QStringLiteral(u"\u00c3\u00a4 \u00fc"));
}

void tst_DvFieldText::coinsBytesAreShown()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, shown);
    QCOMPARE(DvFieldText::toQString(SbString(bytes.constData())), shown);
}

void tst_DvFieldText::whatIsTypedBecomesUtf8AndComesBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QString() << QByteArray("");
    QTest::newRow("quotes") << QStringLiteral("\"a\\\"") << QByteArray("\"a\\\"");
    QTest::newRow("beyond ASCII") << QStringLiteral(u"\u00e4\U0001d11e")
                                  << QByteArray("\xc3\xa4\xf0\x9d\x84\x9e");
    QTest::newRow("byte order mark") << QStringLiteral(u"\ufeff"
                                                       "a")
                                     << QByteArray("\xef\xbb\xbf"
                                                   "a");
}

void tst_DvFieldText::whatIsTypedBecomesUtf8AndComesBack()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    const SbString converted = DvFieldText::toSbString(text);
    QCOMPARE(QByteArray(converted.getString()), bytes);
    QCOMPARE(converted.getLength(), bytes.size());
    QCOMPARE(DvFieldText::toQString(converted), text);
}

void tst_DvFieldText::aLongTextIsShownWhole()
{
    const QByteArray bytes = QByteArray("\xc3\xa4").repeated(100000);
    const QString shown = DvFieldText::toQString(SbString(bytes.constData()));
    QCOMPARE(shown.size(), 100000);
    QCOMPARE(shown.toUtf8(), bytes);
}

void tst_DvFieldText::numbersAreInGeneralNotation_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("shown");
    const auto add = [](double number, const char* shown) {
        QTest::newRow(shown) << number << QString::fromLatin1(shown);
    };
    add(0.0, "0");
    add(1.0, "1");
    add(static_cast<double>(0.1F), "0.1");
    add(-2.5, "-2.5");
    add(1.23456789, "1.23457");
    add(0.0001, "0.0001");
    add(0.00001, "1e-05");
    add(1e-7, "1e-07");
    add(999999.0, "999999");
    add(1000000.0, "1e+06");
    add(123456789.0, "1.23457e+08");
    add(static_cast<double>(std::numeric_limits<float>::max()), "3.40282e+38");
    add(1e-300, "1e-300");
    add(std::numeric_limits<double>::infinity(), "inf");
    add(-std::numeric_limits<double>::infinity(), "-inf");
    add(std::numeric_limits<double>::quiet_NaN(), "nan");
}

void tst_DvFieldText::numbersAreInGeneralNotation()
{
    QFETCH(double, number);
    QTEST(DvFieldText::fromReal(number), "shown");
}

void tst_DvFieldText::minusZeroShowsAsZero()
{
    QCOMPARE(DvFieldText::fromReal(-0.0), QStringLiteral("0"));
}

void tst_DvFieldText::moreDigitsAreShownWhereTheyAreWanted()
{
    QCOMPARE(DvFieldText::fromReal(123456789.0, 9), QStringLiteral("123456789"));
    QCOMPARE(DvFieldText::fromReal(3.141592653589793, 16), QStringLiteral("3.141592653589793"));
    QCOMPARE(DvFieldText::fromReal(1.26, 2), QStringLiteral("1.3"));
}

void tst_DvFieldText::numbersAreTheSameInEveryLanguage()
{
    QFETCH(QByteArray, language);
    const UserLanguage user(language);
    if (!user.isInstalled())
        QSKIP("The C library lacks this language.");
    QCOMPARE(DvFieldText::fromReal(-1234567.5, 8), QStringLiteral("-1234567.5"));
    QCOMPARE(DvFieldText::fromReal(1e-7), QStringLiteral("1e-07"));
    QCOMPARE(DvFieldText::toFloat(QStringLiteral("1234.5")), 1234.5F);
    QCOMPARE(DvFieldText::toFloat(QStringLiteral("1,5")), 0.0F);
}

void tst_DvFieldText::floatsAreRead_data()
{
    QTest::addColumn<float>("number");
    QTest::newRow("1.5") << 1.5F;
    QTest::newRow("-1e-07") << -1e-7F;
    QTest::newRow(" 2 ") << 2.0F;
    QTest::newRow("16777217") << 16777216.0F; // single precision
    QTest::newRow("") << 0.0F;
    QTest::newRow("abc") << 0.0F;
    QTest::newRow("1.5m") << 0.0F;
    QTest::newRow("1 2") << 0.0F;
    QTest::newRow("1,5") << 0.0F;
    QTest::newRow("1,000") << 0.0F;
    QTest::newRow("1e50") << 0.0F;
    QTest::newRow("0x10") << 0.0F;
}

void tst_DvFieldText::floatsAreRead()
{
    QTEST(DvFieldText::toFloat(QString::fromLatin1(QTest::currentDataTag())), "number");
}

TAVRIK_TEST_MAIN(tst_DvFieldText)
#include "tst_DvFieldText.moc"
