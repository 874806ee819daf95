#include "Console/ConsoleView.h"

#include "tests/support/TestMain.h"

#include <QAction>
#include <QMenu>
#include <QScrollBar>
#include <QSet>
#include <QTextBlock>
#include <QTimer>

#include <memory>

namespace {

const QColor s_color(Qt::darkGreen);

/** Shown, eight lines high or so. */
class Shown : public ConsoleView
{
public:
    Shown()
    {
        resize(300, 150);
        show();
        if (!QTest::qWaitForWindowExposed(this))
            qFatal("The view does not appear.");
    }

    void add(int count)
    {
        for (int i = 0; i < count; ++i)
            addParagraph(QStringLiteral("line %1").arg(m_next++), s_color);
    }

    void turn() { QCoreApplication::processEvents(); }
    QString firstLineSeen() const { return firstVisibleBlock().text(); }
    bool isAtEnd() const { return verticalScrollBar()->value() == verticalScrollBar()->maximum(); }

private:
    int m_next = 0;
};

QColor colorAt(const ConsoleView& view, int position)
{
    QTextCursor cursor(view.document());
    cursor.setPosition(position + 1);
    return cursor.charFormat().foreground().color();
}

double contrast(const QColor& one, const QColor& other)
{
    const auto luminance = [](const QColor& color) {
        const auto linear = [](double value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF()) + 0.05;
    };
    const double a = luminance(one);
    const double b = luminance(other);
    return std::max(a, b) / std::min(a, b);
}

} // namespace

/** The view of the messages. */
class tst_ConsoleView : public QObject
{
    Q_OBJECT

private slots:
    void aMessageIsInTheDocumentAtOnce()
    {
        Shown view;
        view.addParagraph(QStringLiteral("first"), Qt::darkRed);
        view.addParagraph(QStringLiteral("second"), Qt::darkGreen);
        QCOMPARE(view.toPlainText(), QStringLiteral("first\nsecond"));
        QCOMPARE(colorAt(view, 0), QColor(Qt::darkRed));
        QCOMPARE(colorAt(view, 6), QColor(Qt::darkGreen));
    }

    void aTextIsShownAsItIsWritten_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* const text : {"a<b and c>d", "#include <a>", "<b>bold</b>", "&lt;",
                                       "  two  spaces\tand a tab", "one\n\ntwo", "trailing\n"})
            QTest::newRow(text) << QString::fromLatin1(text);
    }

    void aTextIsShownAsItIsWritten()
    {
        QFETCH(QString, text);
        Shown view;
        view.addParagraph(QStringLiteral("before"), s_color);
        view.addParagraph(text, s_color);
        QCOMPARE(view.toPlainText(), QStringLiteral("before\n") + text);
        QCOMPARE(colorAt(view, 7), s_color);
    }

    void anEmptyMessageIsAnEmptyLine()
    {
        Shown view;
        view.addParagraph(QStringLiteral("a"), s_color);
        view.addParagraph({}, s_color);
        view.addParagraph(QStringLiteral("b"), s_color);
        QCOMPARE(view.toPlainText(), QStringLiteral("a\n\nb"));
    }

    void whatTheUserHasSelectedKeepsItsColourAndItsSize()
    {
        Shown view;
        view.addParagraph(QStringLiteral("error"), Qt::darkRed);
        view.turn();
        QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(view.textCursor().selectedText(), QStringLiteral("error"));
        view.addParagraph(QStringLiteral("information"), Qt::darkGreen);
        view.turn();
        QCOMPARE(view.textCursor().selectedText(), QStringLiteral("error"));
        QCOMPARE(colorAt(view, 0), QColor(Qt::darkRed));
    }

    void messagesSelectNothing()
    {
        Shown view;
        view.add(2);
        QVERIFY(!view.textCursor().hasSelection());
        view.turn();
        QTest::keyClick(&view, Qt::Key_End, Qt::ControlModifier);
        view.add(2);
        view.turn();
        QVERIFY(!view.textCursor().hasSelection());
    }

    void aSelectionThatReachesTheEndDoesNotGrow_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::newRow("forwards") << 5 << 11;
        QTest::newRow("backwards") << 11 << 5;
    }
    void aSelectionThatReachesTheEndDoesNotGrow()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        Shown view;
        view.addParagraph(QStringLiteral("some birds"), s_color);
        view.addParagraph({}, s_color); // and while nothing is laid out yet
        QTextCursor cursor(view.document());
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        view.setTextCursor(cursor);
        const QString selected = view.textCursor().selectedText();
        for (int i = 0; i < 2; ++i) {
            view.add(2);
            QCOMPARE(view.textCursor().selectedText(), selected);
            view.turn();
            QCOMPARE(view.textCursor().selectedText(), selected);
        }
    }

    void theViewStaysWhereItIsWhenASelectionIsHeld()
    {
        Shown view;
        view.add(100);
        view.turn();
        QTest::keyClick(&view, Qt::Key_End, Qt::ControlModifier);
        QTest::keyClick(&view, Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier);
        const QString selected = view.textCursor().selectedText();
        QCOMPARE(view.firstLineSeen(), QStringLiteral("line 0"));
        view.add(10);
        view.turn();
        QCOMPARE(view.firstLineSeen(), QStringLiteral("line 0"));
        QCOMPARE(view.textCursor().selectedText(), selected);
    }

    void theViewFollowsItsEnd()
    {
        Shown view;
        view.add(100);
        view.turn();
        QVERIFY(view.isAtEnd());
        QVERIFY(view.verticalScrollBar()->maximum() > 0);
        view.add(1);
        view.turn();
        QVERIFY(view.isAtEnd());
    }

    void aViewThatWasScrolledUpStaysWhereItIs()
    {
        Shown view;
        view.add(100);
        view.turn();
        QTest::keyClick(&view, Qt::Key_Home, Qt::ControlModifier);
        view.verticalScrollBar()->setValue(40);
        view.add(100);
        view.turn();
        QCOMPARE(view.firstLineSeen(), QStringLiteral("line 40"));
        view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum());
        view.add(100);
        view.turn();
        QVERIFY(view.isAtEnd());
    }

    void aViewAtItsEndStaysThereWhenItIsMadeSmallerOrWrapped()
    {
        Shown view;
        view.add(100);
        view.turn();
        view.resize(300, 80);
        view.turn();
        QVERIFY(view.isAtEnd());
        view.findChild<QAction*>("wordWrapAction")->trigger();
        view.turn();
        QVERIFY(view.isAtEnd());
    }

    void beyondItsLimitTheOldestGoAndTheFirstLineSaysHowMany()
    {
        Shown view;
        view.setKeptLines(1000);
        view.add(1010);
        view.turn();
        QCOMPARE(view.droppedLines(), 0);
        QCOMPARE(view.toPlainText().section('\n', 0, 0), QStringLiteral("line 0"));
        view.add(1);
        view.turn();
        QCOMPARE(view.droppedLines(), 11);
        const QStringList lines = view.toPlainText().split('\n');
        QCOMPARE(lines.first(), QStringLiteral("11 older lines are no longer kept."));
        QCOMPARE(lines.at(1), QStringLiteral("line 11"));
        QCOMPARE(lines.last(), QStringLiteral("line 1010"));
        QCOMPARE(lines.size(), 1001);
        QVERIFY(view.isAtEnd());
    }

    void theCountOfDroppedLinesGoesOnAndBeginsAnewWhenTheViewIsEmptied()
    {
        Shown view;
        view.setKeptLines(100);
        for (int i = 0; i < 50; ++i) {
            view.add(20);
            view.turn();
        }
        const QStringList lines = view.toPlainText().split('\n');
        const int dropped = view.droppedLines();
        QCOMPARE(lines.first(),
                 QLocale().toString(dropped) + QStringLiteral(" older lines are no longer kept."));
        QCOMPARE(lines.at(1), QStringLiteral("line %1").arg(dropped));
        QCOMPARE(lines.last(), QStringLiteral("line 999"));
        view.clearText();
        QCOMPARE(view.toPlainText(), QString());
        QCOMPARE(view.droppedLines(), 0);
    }

    void whatIsLookedAtStaysInPlaceWhileOlderLinesGo()
    {
        Shown view;
        view.setKeptLines(1000);
        view.add(1000);
        view.turn();
        view.verticalScrollBar()->setValue(500);
        QCOMPARE(view.firstLineSeen(), QStringLiteral("line 500"));
        view.add(300);
        view.turn();
        QVERIFY(view.droppedLines() > 0);
        QCOMPARE(view.firstLineSeen(), QStringLiteral("line 500"));
    }

    void keysBeforeTheTurnsEndFindTheViewLaidOut()
    {
        Shown view;
        view.add(500);
        QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
        const QString selected = view.textCursor().selectedText();
        QVERIFY2(selected.endsWith(QStringLiteral("line 499")), qPrintable(selected.right(40)));
        view.add(500);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.viewport()->rect().center());
        QVERIFY(view.isAtEnd());
    }

    void aViewThatDiesBeforeTheTurnsEndDoesSoQuietly()
    {
        ConsoleView view;
        view.addParagraph(QStringLiteral("never painted"), s_color);
        QVERIFY(!view.toPlainText().isEmpty());
    }

    void theContextMenuCopiesSelectsAllFindsAndWraps()
    {
        Shown view;
        view.add(3);
        view.turn();
        QStringList texts;
        QTimer::singleShot(0, &view, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu)
                return;
            for (const QAction* action : menu->actions())
                texts << action->text().remove('&').section('\t', 0, 0);
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5});
        QCoreApplication::sendEvent(view.viewport(), &event);
        for (const char* const text : {"Copy", "Select All", "Find...", "Word Wrap"})
            QVERIFY2(texts.contains(QLatin1String(text)), qPrintable(texts.join('|')));
    }

    void wordWrapBreaksLongLinesAndIsSwitchedOffAgain()
    {
        Shown view;
        view.addParagraph(QString(400, 'x').replace(9, 1, " "), s_color);
        view.turn();
        QVERIFY(view.horizontalScrollBar()->maximum() > 0);
        auto* const wrap = view.findChild<QAction*>("wordWrapAction");
        wrap->trigger();
        view.turn();
        QVERIFY(wrap->isChecked());
        QCOMPARE(view.horizontalScrollBar()->maximum(), 0);
        wrap->trigger();
        view.turn();
        QVERIFY(view.horizontalScrollBar()->maximum() > 0);
    }

    void typingChangesNothing()
    {
        Shown view;
        view.add(1);
        view.turn();
        QTest::keyClicks(&view, QStringLiteral("abc"));
        QTest::keyClick(&view, Qt::Key_Delete);
        QCOMPARE(view.toPlainText(), QStringLiteral("line 0"));
    }

    void theColoursReadWellOnItsBaseInALightAndInADarkTheme_data()
    {
        QTest::addColumn<bool>("isInside");
        QTest::addColumn<bool>("isOfWindow");
        QTest::newRow("a window of its own") << false << false;
        QTest::newRow("inside a window") << true << false;
        QTest::newRow("inside a window with a palette of its own") << true << true;
    }
    void theColoursReadWellOnItsBaseInALightAndInADarkTheme()
    {
        QFETCH(bool, isInside);
        QFETCH(bool, isOfWindow);
        const QPalette former = QApplication::palette();
        QPalette dark(QColor(50, 50, 55));
        dark.setColor(QPalette::Base, QColor(30, 30, 32));
        QWidget window;
        auto* const view = new ConsoleView(&window);
        const std::unique_ptr<ConsoleView> owner(isInside ? nullptr : view);
        if (!isInside)
            view->setParent(nullptr);
        QSet<QRgb> bases;
        for (const QPalette& theme : {QPalette(Qt::lightGray), dark, former}) {
            isOfWindow ? window.setPalette(theme) : QApplication::setPalette(theme);
            QCoreApplication::processEvents();
            const QColor base = view->palette().color(QPalette::Base);
            bases << base.rgb();
            for (const Qt::GlobalColor color : {Qt::darkRed, Qt::darkGreen, Qt::darkYellow})
                QVERIFY2(contrast(color, base) > 3.7, qPrintable(base.name()));
        }
        QCOMPARE(bases.size(), 2); // white again where it is light again
    }
};

TAVRIK_TEST_MAIN(tst_ConsoleView)
#include "tst_ConsoleView.moc"
