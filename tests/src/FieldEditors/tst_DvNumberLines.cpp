#include "tests/support/TestMain.h"

#include "FieldEditors/DvLineEdit.h"
#include "FieldEditors/DvNumberLines.h"

#include <QVBoxLayout>
#include <QWidget>

/** Two lines that show one number each. */
class tst_DvNumberLines : public QObject
{
    Q_OBJECT

private:
    void typeInto(std::size_t index, const QString& text)
    {
        m_lines.line(index).setFocus();
        m_lines.line(index).selectAll();
        QTest::keyClicks(&m_lines.line(index), text);
    }

    std::unique_ptr<QWidget> m_window;
    DvNumberLines m_lines;

private slots:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_lines = DvNumberLines();
        auto* const layout = new QVBoxLayout(m_window.get());
        for (int i = 0; i < 2; ++i) {
            auto* const line = new DvLineEdit("line", m_window.get());
            layout->addWidget(line);
            m_lines.add(line);
        }
        m_window->show();
        QApplication::setActiveWindow(m_window.get());
    }

    void showsSixSignificantDigitsInGeneralNotation_data()
    {
        QTest::addColumn<double>("number");
        QTest::addColumn<QString>("text");
        QTest::newRow("small") << 1e-7 << QStringLiteral("1e-07");
        QTest::newRow("nine digits") << 123456789.0 << QStringLiteral("1.23457e+08");
        QTest::newRow("rounded") << 1.23456788 << QStringLiteral("1.23457");
        QTest::newRow("whole") << 3.0 << QStringLiteral("3");
    }
    void showsSixSignificantDigitsInGeneralNotation()
    {
        QFETCH(double, number);
        QFETCH(QString, text);
        m_lines.show(0, number);
        QCOMPARE(m_lines.line(0).text(), text);
        QCOMPARE(m_lines.line(0).cursorPosition(), 0);
        QVERIFY(!m_lines.isModified());
    }

    void anUntouchedLineStandsForTheComponentToTheLastBit()
    {
        m_lines.show(0, 1.23456788);
        QCOMPARE(m_lines.number(0, 1.23456788), 1.23456788);
        QCOMPARE(m_lines.number(0, 42.0), 42.0); // changed since, and not shown yet
    }

    void aTypedLineStandsForItsText()
    {
        m_lines.show(0, 1.0);
        typeInto(0, QStringLiteral("2.5"));
        QVERIFY(m_lines.isModified());
        QCOMPARE(m_lines.number(0, 1.0), 2.5);
    }

    void textThatIsNoNumberCountsAsZero()
    {
        m_lines.show(0, 1.0);
        typeInto(0, QStringLiteral("wood"));
        QCOMPARE(m_lines.number(0, 1.0), 0.0);
    }

    void typingTheShownTextMeansTheText()
    {
        m_lines.show(0, 1.23456788);
        typeInto(0, QStringLiteral("1.23457"));
        QCOMPARE(m_lines.number(0, 1.23456788), static_cast<double>(1.23457F));
    }

    void aTypedTextSurvivesAShowWhileItsLineHasTheFocus()
    {
        m_lines.show(0, 1.0);
        typeInto(0, QStringLiteral("2.5"));
        m_lines.show(0, 9.0);
        QCOMPARE(m_lines.line(0).text(), QStringLiteral("2.5"));
        QVERIFY(m_lines.isModified());
        QCOMPARE(m_lines.number(0, 9.0), 2.5);
    }

    void anEnteredNumberIsExactWhileItsTextStands()
    {
        m_lines.show(0, 1.0);
        m_lines.enter(0, 0.123456789);
        QVERIFY(m_lines.isModified());
        QCOMPARE(m_lines.number(0, 1.0), 0.123456789);
        typeInto(0, QStringLiteral("0.5"));
        QCOMPARE(m_lines.number(0, 1.0), 0.5);
    }

    void aShownNumberReplacesAnEnteredOne()
    {
        m_lines.enter(0, 0.123456789);
        m_lines.clearModified();
        m_lines.show(0, 3.0);
        QCOMPARE(m_lines.number(0, 3.0), 3.0);
    }

    void clearingForgetsThatAnythingWasTyped()
    {
        m_lines.show(1, 1.0);
        typeInto(1, QStringLiteral("2"));
        m_lines.clearModified();
        QVERIFY(!m_lines.isModified());
        m_lines.show(1, 1.0);
        QCOMPARE(m_lines.line(1).text(), QStringLiteral("1"));
    }
};

TAVRIK_TEST_MAIN(tst_DvNumberLines)
#include "tst_DvNumberLines.moc"
