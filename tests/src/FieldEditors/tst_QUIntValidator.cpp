#include "tests/support/TestMain.h"

#include "FieldEditors/QULongValidator.h"

#include <QSignalSpy>

#include <memory>

class tst_QUIntValidator : public QObject
{
    Q_OBJECT

private:
    static QValidator::State validate(const QValidator& validator, QString text)
    {
        int position = 0;
        return validator.validate(text, position);
    }

private slots:
    void bothReadTheSame32Bits_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("state");
        QTest::newRow("the largest") << "4294967295" << int(QValidator::Acceptable);
        QTest::newRow("too large for 32 bits") << "4294967296" << int(QValidator::Invalid);
        QTest::newRow("nothing") << "" << int(QValidator::Acceptable);
        QTest::newRow("zero") << "0" << int(QValidator::Acceptable);
        QTest::newRow("a minus") << "-" << int(QValidator::Invalid);
        QTest::newRow("negative") << "-1" << int(QValidator::Invalid);
        QTest::newRow("letters") << "abc" << int(QValidator::Invalid);
        QTest::newRow("another base") << "0x5" << int(QValidator::Invalid);
        QTest::newRow("a fraction") << "1.5" << int(QValidator::Invalid);
        QTest::newRow("group separators") << "1,000" << int(QValidator::Invalid);
    }

    void bothReadTheSame32Bits()
    {
        QFETCH(QString, text);
        QFETCH(int, state);
        const QUIntValidator first(0, 4294967295U, nullptr);
        const QULongValidator second(0, 4294967295U, nullptr);
        QCOMPARE(int(validate(first, text)), state);
        QCOMPARE(int(validate(second, text)), state);
    }

    void keepsTheSecondNoWiderThanTheFirst()
    {
        const QULongValidator validator(0, 4294967295U, nullptr);
        QCOMPARE(validate(validator, "4294967296"), QValidator::Invalid);
        QCOMPARE(validator.top(), 4294967295U);
    }

    void aNumberOutsideOfTheRangeIsIntermediate()
    {
        const QUIntValidator validator(10, 20, nullptr);
        QCOMPARE(validate(validator, "9"), QValidator::Intermediate);
        QCOMPARE(validate(validator, "10"), QValidator::Acceptable);
        QCOMPARE(validate(validator, "20"), QValidator::Acceptable);
        QCOMPARE(validate(validator, "21"), QValidator::Intermediate);
    }

    void anotherRangeIsTakenAndTold()
    {
        QULongValidator validator(0, 5, nullptr);
        QSignalSpy changed(&validator, SIGNAL(changed()));
        validator.setRange(0, 5);
        QCOMPARE(changed.count(), 0);
        validator.setRange(3, 9);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(validator.bottom(), 3U);
        QCOMPARE(validate(validator, "2"), QValidator::Intermediate);
        QCOMPARE(validate(validator, "9"), QValidator::Acceptable);
    }

    void theParentOwnsIt()
    {
        auto parent = std::make_unique<QObject>();
        const QPointer<QUIntValidator> validator = new QUIntValidator(0, 1, parent.get());
        parent.reset();
        QVERIFY(!validator);
    }
};

TAVRIK_TEST_MAIN(tst_QUIntValidator)
#include "tst_QUIntValidator.moc"
