#include "FieldEditors/DvLineEdit.h"
#include "FieldEditors/DvRealValidator.h"
#include "tests/support/TestMain.h"

#include <QFocusEvent>
#include <QImage>
#include <QMainWindow>
#include <QPaintEvent>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

/** The line's parent; writes down the keys that the line leaves to it. */
class Parent : public QWidget
{
public:
    using QWidget::QWidget;
    QList<int> keys;

protected:
    void keyPressEvent(QKeyEvent* event) override { keys << event->key(); }
};

/** A window with the line and another one. */
struct Window
{
    Window()
    {
        auto* const layout = new QVBoxLayout(parent);
        layout->addWidget(line);
        layout->addWidget(other);
        window.setCentralWidget(parent);
        window.show();
        QApplication::setActiveWindow(&window);
        line->setFocus();
    }

    QMainWindow window;
    Parent* parent = new Parent;
    DvLineEdit* line = new DvLineEdit("m_line", parent);
    QLineEdit* other = new QLineEdit(parent);
    QSignalSpy reverts{line, SIGNAL(revertRequested())};
};

/** What is painted of a widget from now on. */
class PaintedRegion : public QObject
{
public:
    explicit PaintedRegion(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }

    QRegion region;
};

/** Where two pictures of one size differ. */
QRegion difference(const QImage& one, const QImage& other)
{
    QRegion region;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                region += QRect(x, y, 1, 1);
        }
    }
    return region;
}

void addReasons()
{
    QTest::addColumn<int>("reason");
    QTest::newRow("mouse") << int(Qt::MouseFocusReason);
    QTest::newRow("tab") << int(Qt::TabFocusReason);
    QTest::newRow("other") << int(Qt::OtherFocusReason);
}

} // namespace

class tst_DvLineEdit : public QObject
{
    Q_OBJECT

private slots:
    void itHasItsName();
    void aLongTextIsHeldWhole();
    void aShownTextIsTheFieldsAndSeenFromItsStart();
    void whatTheUserTypesIsNotTheFields();
    void aTextSetByAnythingElseIsNotTheFields();
    void aNewTextIsPaintedWithoutTheFrameAroundIt();

    void escapeAsksForTheFieldsTextWhileATextIsTyped();
    void escapeIsLeftToTheParentWhileThereIsNothingToRevert();
    void escapeAsksWhenATypedTextEqualsTheShownOne();

    void leavingWithAnUnacceptableTextAsksForTheFieldsText_data() { addReasons(); }
    void leavingWithAnUnacceptableTextAsksForTheFieldsText();
    void leavingWithAnAcceptableTextAsksForNothing();
    void leavingWithAnUnacceptableShownTextAsksForNothing();
    void aPopupOrAnotherWindowLeavesTheTypedTextAlone();
};

void tst_DvLineEdit::itHasItsName()
{
    const DvLineEdit line("m_xLine", nullptr);
    QCOMPARE(line.objectName(), QStringLiteral("m_xLine"));
}

void tst_DvLineEdit::aLongTextIsHeldWhole()
{
    DvLineEdit line("m_line", nullptr);
    const QString text(100000, QLatin1Char('x'));
    line.showText(text);
    QCOMPARE(line.text(), text);
    line.end(false);
    QTest::keyClicks(&line, QStringLiteral("yz"));
    QCOMPARE(line.text(), text + QStringLiteral("yz"));
}

void tst_DvLineEdit::aShownTextIsTheFieldsAndSeenFromItsStart()
{
    DvLineEdit line("m_line", nullptr);
    QTest::keyClicks(&line, QStringLiteral("typed"));
    line.showText(QStringLiteral("1.5"));
    QVERIFY(line.showsFieldValue());
    QVERIFY(!line.isModified());
    QCOMPARE(line.text(), QStringLiteral("1.5"));
    QCOMPARE(line.shownText(), QStringLiteral("1.5"));
    QCOMPARE(line.cursorPosition(), 0);
}

void tst_DvLineEdit::whatTheUserTypesIsNotTheFields()
{
    DvLineEdit line("m_line", nullptr);
    line.showText(QStringLiteral("1.5"));
    QTest::keyClicks(&line, QStringLiteral("2"));
    QVERIFY(!line.showsFieldValue());
    QCOMPARE(line.shownText(), QStringLiteral("1.5"));
}

void tst_DvLineEdit::aTextSetByAnythingElseIsNotTheFields()
{
    DvLineEdit line("m_line", nullptr);
    line.showText(QStringLiteral("1.5"));
    line.setText(QStringLiteral("2"));
    QVERIFY(!line.showsFieldValue());
}

void tst_DvLineEdit::aNewTextIsPaintedWithoutTheFrameAroundIt()
{
    Window w;
    w.other->setFocus();
    w.line->showText(QStringLiteral("1.500000"));
    QVERIFY(QTest::qWaitForWindowExposed(&w.window));
    const QImage before = w.line->grab().toImage();
    PaintedRegion painted(*w.line);
    w.line->showText(QStringLiteral("-8888.75"));
    QTRY_VERIFY(!painted.region.isEmpty());
    const QRegion repainted = painted.region;
    const QRegion changed = difference(before, w.line->grab().toImage());
    QVERIFY(!changed.isEmpty());
    QVERIFY(changed.subtracted(repainted).isEmpty());
    QVERIFY(!repainted.intersects(QRect(0, 0, w.line->width(), 1)));
    QVERIFY(!repainted.intersects(QRect(0, 0, 1, w.line->height())));
    QVERIFY(w.line->updatesEnabled());
}

void tst_DvLineEdit::escapeAsksForTheFieldsTextWhileATextIsTyped()
{
    Window host;
    host.line->showText(QStringLiteral("1.5"));
    QTest::keyClicks(host.line, QStringLiteral("2"));
    QTest::keyClick(host.line, Qt::Key_Escape);
    QCOMPARE(host.reverts.count(), 1);
    QCOMPARE(host.parent->keys, QList<int>());
}

void tst_DvLineEdit::escapeIsLeftToTheParentWhileThereIsNothingToRevert()
{
    Window host;
    host.line->showText(QStringLiteral("1.5"));
    QTest::keyClick(host.line, Qt::Key_Escape);
    QCOMPARE(host.reverts.count(), 0);
    QCOMPARE(host.parent->keys, QList<int>({Qt::Key_Escape}));
}

void tst_DvLineEdit::escapeAsksWhenATypedTextEqualsTheShownOne()
{
    Window host;
    host.line->showText(QStringLiteral("1.5"));
    QTest::keyClicks(host.line, QStringLiteral("2"));
    QTest::keyClick(host.line, Qt::Key_Backspace);
    QCOMPARE(host.line->text(), QStringLiteral("1.5"));
    QTest::keyClick(host.line, Qt::Key_Escape);
    QCOMPARE(host.reverts.count(), 1);
}

void tst_DvLineEdit::leavingWithAnUnacceptableTextAsksForTheFieldsText()
{
    QFETCH(int, reason);
    Window host;
    host.line->setValidator(new DvRealValidator(host.line));
    host.line->showText(QStringLiteral("1.5"));
    host.line->selectAll();
    QTest::keyClicks(host.line, QStringLiteral("-"));
    host.other->setFocus(static_cast<Qt::FocusReason>(reason));
    QVERIFY(!host.line->hasFocus());
    QCOMPARE(host.reverts.count(), 1);
}

void tst_DvLineEdit::leavingWithAnAcceptableTextAsksForNothing()
{
    Window host;
    host.line->setValidator(new DvRealValidator(host.line));
    host.line->showText(QStringLiteral("1.5"));
    QTest::keyClicks(host.line, QStringLiteral("2"));
    host.other->setFocus();
    QVERIFY(!host.line->hasFocus());
    QCOMPARE(host.reverts.count(), 0);
    QCOMPARE(host.line->text(), QStringLiteral("21.5"));
}

void tst_DvLineEdit::leavingWithAnUnacceptableShownTextAsksForNothing()
{
    Window host;
    host.line->setValidator(new DvRealValidator(host.line));
    host.line->showText(QStringLiteral("nan"));
    host.other->setFocus();
    QVERIFY(!host.line->hasFocus());
    QCOMPARE(host.reverts.count(), 0);
}

void tst_DvLineEdit::aPopupOrAnotherWindowLeavesTheTypedTextAlone()
{
    Window host;
    host.line->setValidator(new DvRealValidator(host.line));
    QTest::keyClicks(host.line, QStringLiteral("-"));
    for (const auto reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
        QFocusEvent leave(QEvent::FocusOut, reason);
        QApplication::sendEvent(host.line, &leave);
    }
    QCOMPARE(host.reverts.count(), 0);
    QCOMPARE(host.line->text(), QStringLiteral("-"));
}

TAVRIK_TEST_MAIN(tst_DvLineEdit)
#include "tst_DvLineEdit.moc"
