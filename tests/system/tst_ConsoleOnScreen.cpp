#include "tests/support/ModalDialog.h"
#include "tests/support/TestMain.h"
#include "tests/system/SessionOnScreen.h"

#include "app/AppSceneView.h"

#include <Inventor/errors/SoDebugError.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QDockWidget>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>

#include <cstdlib>
#include <iostream>

namespace {

const char* const BrokenScene = "#Inventor V2.1 ascii\n"
                                "Separator {\n"
                                "  DEF Ball Sphere { radius 2 }\n"
                                "  USE Parrot\n"
                                "}\n";

bool areNear(const QColor& one, const QColor& other)
{
    constexpr int near = 40;
    return std::abs(one.red() - other.red()) <= near &&
           std::abs(one.green() - other.green()) <= near &&
           std::abs(one.blue() - other.blue()) <= near;
}

} // namespace

/** What the program and the scene graph library say, as a user reads it at the window's bottom. */
class tst_ConsoleOnScreen : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The dialogs of the desktop cannot be driven.
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }
    void init() { m_session.start(); }
    void cleanup() { m_session.finish(); }

    void aBrokenReferenceIsToldOnceAndStandsInDarkRed();
    void theWarningsToggleHidesWarnings();
    void whatTheProgramWritesIsDarkGreen();
    void saveWritesWhatIsSeen();
    void ctrlFFindsAText();
    void theViewKeepsMostOfTheWindow_data();
    void theViewKeepsMostOfTheWindow();
    void resettingTheLayoutBringsTheConsoleBack();
    void theViewMenuListsTheConsole();

private:
    QDockWidget& dock() const { return *m_session.window().findChild<QDockWidget*>("TvkConsole"); }
    QPlainTextEdit& output() const
    {
        return *m_session.window().findChild<QPlainTextEdit*>("m_consoleOutput");
    }
    /** The lines that hold a text, once they have had the time to arrive. */
    QStringList linesWith(const char* text) const
    {
        QTest::qWait(50);
        return output().toPlainText().split('\n').filter(QLatin1String(text));
    }
    /** Of the first line that holds a text, as the document has it. */
    QColor colorOf(const char* text) const
    {
        const QTextCursor found = output().document()->find(QLatin1String(text));
        return found.isNull() ? QColor() : found.charFormat().foreground().color();
    }
    /** Whether a colour can be seen in the messages, as nearly as thin letters show it. */
    bool isOnScreen(const QColor& color) const;
    void click(const char* button) const
    {
        QTest::mouseClick(m_session.visible<QPushButton>(button), Qt::LeftButton);
    }
    /** Opens the View menu and clicks the entry with this text. */
    void clickInViewMenu(const char* entry) const;

    SessionOnScreen m_session;
};

bool tst_ConsoleOnScreen::isOnScreen(const QColor& color) const
{
    const QImage picture = output().viewport()->grab().toImage();
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (areNear(picture.pixelColor(x, y), color))
                return true;
    return false;
}

void tst_ConsoleOnScreen::clickInViewMenu(const char* entry) const
{
    QMenuBar& bar = *m_session.window().menuBar();
    auto& menu = *m_session.window().findChild<QMenu*>("menuView");
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier,
                      bar.actionGeometry(menu.menuAction()).center());
    QTRY_VERIFY(menu.isVisible());
    for (QAction* action : menu.actions()) {
        if (action->text() != QLatin1String(entry))
            continue;
        QTest::mouseClick(&menu, Qt::LeftButton, Qt::NoModifier,
                          menu.actionGeometry(action).center());
        return;
    }
    QFAIL(entry);
}

void tst_ConsoleOnScreen::aBrokenReferenceIsToldOnceAndStandsInDarkRed()
{
    const QString path = m_session.write("broken.iv", BrokenScene);
    m_session.window().openFile(path);
    const auto boxes = m_session.window().findChildren<QMessageBox*>();
    QCOMPARE(boxes.size(), 1);
    QVERIFY(boxes.first()->informativeText().contains("Parrot"));
    QTRY_VERIFY(boxes.first()->isVisible());
    QTest::mouseClick(boxes.first()->button(QMessageBox::Ok), Qt::LeftButton);
    QCOMPARE(linesWith("Parrot").size(), 1);
    QCOMPARE(colorOf("Parrot"), QColor(Qt::darkRed));
    QVERIFY(isOnScreen(Qt::darkRed));
}

void tst_ConsoleOnScreen::theWarningsToggleHidesWarnings()
{
    SoDebugError::postWarning("parrot", "first");
    QCOMPARE(linesWith("first").size(), 1);
    QCOMPARE(colorOf("first"), QColor(Qt::darkYellow));
    click("m_warningsButton");
    SoDebugError::postWarning("parrot", "second");
    SoDebugError::post("parrot", "an error");
    QCOMPARE(linesWith("second").size(), 0);
    QCOMPARE(linesWith("an error").size(), 1);
    QCOMPARE(colorOf("an error"), QColor(Qt::darkRed));
    click("m_warningsButton");
    SoDebugError::postWarning("parrot", "third");
    QCOMPARE(linesWith("third").size(), 1);
}

void tst_ConsoleOnScreen::whatTheProgramWritesIsDarkGreen()
{
    std::cout << "a parrot said hello" << std::flush;
    QCOMPARE(linesWith("hello"), QStringList{"a parrot said hello"});
    QCOMPARE(colorOf("hello"), QColor(Qt::darkGreen));
    QVERIFY(isOnScreen(Qt::darkGreen));
}

void tst_ConsoleOnScreen::saveWritesWhatIsSeen()
{
    click("m_clearButton");
    std::cout << "seen";
    click("m_warningsButton");
    SoDebugError::postWarning("parrot", "unseen");
    const QString path = m_session.write("console.txt", "of another day");
    const ModalDialog user([&](QDialog& dialog) {
        auto& files = static_cast<QFileDialog&>(dialog);
        files.setOption(QFileDialog::DontConfirmOverwrite);
        files.findChild<QLineEdit*>("fileNameEdit")->setText(path);
        QMetaObject::invokeMethod(&files, "accept");
    });
    linesWith("seen");
    click("m_saveButton");
    QVERIFY(user.wasUp());
    QFile file(path);
    QVERIFY(file.open(QFile::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("seen"));
}

void tst_ConsoleOnScreen::ctrlFFindsAText()
{
    std::cout << "a parrot, a finch and a crow";
    QTest::mouseClick(output().viewport(), Qt::LeftButton);
    QTest::keyClick(&output(), Qt::Key_F, Qt::ControlModifier);
    auto* line = m_session.visible<QLineEdit>("findLine");
    QVERIFY(line);
    QTRY_VERIFY(line->hasFocus());
    QTest::keyClicks(line, "finch");
    QCOMPARE(output().textCursor().selectedText(), QString("finch"));
    QTest::keyClick(line, Qt::Key_Escape);
    QVERIFY(!line->isVisible());
    QVERIFY(output().hasFocus());
}

void tst_ConsoleOnScreen::theViewKeepsMostOfTheWindow_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::newRow("1280x800") << QSize(1280, 800);
    QTest::newRow("1600x1000") << QSize(1600, 1000);
}

void tst_ConsoleOnScreen::theViewKeepsMostOfTheWindow()
{
    QFETCH(QSize, screen);
    AppWindow& window = m_session.window();
    window.resize(screen - QSize(16, 48)); // what a window manager's frame takes
    QTest::qWait(300);
    window.resetLayout();
    QTest::qWait(300);
    QCOMPARE(window.dockWidgetArea(&dock()), Qt::BottomDockWidgetArea);
    QVERIFY2(window.view().height() > window.height() * 6 / 10,
             QByteArray::number(window.view().height()));
    QVERIFY2(output().viewport()->height() >= 4 * output().fontMetrics().lineSpacing(),
             QByteArray::number(output().viewport()->height()));
}

void tst_ConsoleOnScreen::resettingTheLayoutBringsTheConsoleBack()
{
    dock().close();
    m_session.window().addDockWidget(Qt::LeftDockWidgetArea, &dock());
    clickInViewMenu("&Reset layout");
    QVERIFY(dock().isVisible());
    QCOMPARE(m_session.window().dockWidgetArea(&dock()), Qt::BottomDockWidgetArea);
}

void tst_ConsoleOnScreen::theViewMenuListsTheConsole()
{
    clickInViewMenu("Console");
    QVERIFY(!dock().isVisible());
    std::cout << "written while it is closed";
    clickInViewMenu("Console");
    QVERIFY(dock().isVisible());
    QCOMPARE(linesWith("while it is closed").size(), 1);
}

TAVRIK_TEST_MAIN(tst_ConsoleOnScreen)
#include "tst_ConsoleOnScreen.moc"
