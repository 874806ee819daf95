#include "scenegraph/SoErrorStack.h"
#include "scenegraph/SoGLError.h"
#include "tests/src/Console/ConsoleRig.h"

#include "tests/support/ModalDialog.h"
#include "tests/support/TestMain.h"

#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoMemoryError.h>
#include <Inventor/errors/SoReadError.h>

#include <QDockWidget>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTemporaryDir>

namespace {

void heard(const SoError*, void*) {}

/** Callback and data of the six error classes, in the order in which they are saved. */
std::vector<std::pair<SoErrorCB*, void*>> handlers()
{
    return {{SoDebugError::getHandlerCallback(), SoDebugError::getHandlerData()},
            {SoError::getHandlerCallback(), SoError::getHandlerData()},
            {SoErrorStack::getHandlerCallback(), SoErrorStack::getHandlerData()},
            {SoGLError::getHandlerCallback(), SoGLError::getHandlerData()},
            {SoMemoryError::getHandlerCallback(), SoMemoryError::getHandlerData()},
            {SoReadError::getHandlerCallback(), SoReadError::getHandlerData()}};
}

QPushButton* button(ConsoleRig& rig, const char* name)
{
    return rig.console.m_consoleScrollArea->window()->findChild<QPushButton*>(name);
}

void click(ConsoleRig& rig, const char* name)
{
    QTest::mouseClick(button(rig, name), Qt::LeftButton);
}

/** Answers the file dialog of the save button with a path. */
ModalDialog::Action choose(const QString& path)
{
    return [path](QDialog& dialog) {
        auto& files = static_cast<QFileDialog&>(dialog);
        files.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
        QMetaObject::invokeMethod(&files, "accept");
    };
}

} // namespace

/** The console dock: its life, its buttons. */
class tst_TvkConsole : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // The dialogs of the desktop cannot be driven.
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

    void tellsWhoItIs()
    {
        const TvkConsole console;
        QCOMPARE(console.getName().getString(), "Console");
        QCOMPARE(console.getDescription().getString(),
                 "A console which prints the standard output and error.");
        QCOMPARE(console.getVendor().getString(), "Quelvar");
        QCOMPARE(console.getVersion().getString(), "1.0.0");
    }

    void theFormHasAViewInAScrollAreaAndARowOfButtons()
    {
        ConsoleRig rig;
        QVERIFY(rig.view().isReadOnly());
        QCOMPARE(rig.view().objectName(), QStringLiteral("m_consoleOutput"));
        QVERIFY(rig.console.m_consoleScrollArea->isAncestorOf(&rig.view()));
        const struct
        {
            const char* name;
            const char* toolTip;
            bool checkable;
        } buttons[] = {{"m_errorsButton", "Displays errors", true},
                       {"m_warningsButton", "Displays warnings", true},
                       {"m_infosButton", "Displays informations", true},
                       {"m_clearButton", "Clears the console", false},
                       {"m_saveButton", "Saves the content of the console", false}};
        for (const auto& expected : buttons) {
            const QPushButton* const found = button(rig, expected.name);
            QVERIFY2(found, expected.name);
            QCOMPARE(found->toolTip(), QLatin1String(expected.toolTip));
            QCOMPARE(found->isCheckable(), expected.checkable);
            QCOMPARE(found->isChecked(), expected.checkable);
            QVERIFY2(!found->icon().isNull(), expected.name);
            QVERIFY2(!found->accessibleName().isEmpty(), expected.name);
        }
    }

    void theIconsAreCrispAtEveryScale()
    {
        for (const char* const name : {"errors", "warnings", "infos", "clear", "save"}) {
            const QString path = QStringLiteral(":/console_icons/Icons/") + QLatin1String(name);
            const QSize size = QImage(path + QStringLiteral(".png")).size();
            QCOMPARE(size, QSize(16, 16));
            QCOMPARE(QImage(path + QStringLiteral("@2x.png")).size(), 2 * size);
            QCOMPARE(QImage(path + QStringLiteral("@3x.png")).size(), 3 * size);
        }
    }

    void keepsRegisteringBeforeItsBaseIsActivated()
    {
        ConsoleRig rig(ConsoleRig::Created);
        rig.console.activate();
        QCOMPARE(rig.host.shell.calls, QStringList({"registerExtension \"Console\" true",
                                                    "addDockWidget \"Console\" 8"}));
        QVERIFY(rig.console.isActive());
        QVERIFY(rig.console.isShown());
        QVERIFY(rig.view().window()->isVisible());
    }

    void deactivatingTakesTheDockOutAndUnregisters()
    {
        ConsoleRig rig;
        QWidget* const dock = rig.view().window();
        rig.host.shell.calls.clear();
        rig.console.deactivate();
        QCOMPARE(rig.host.shell.calls,
                 QStringList({"removeDockWidget \"Console\"", "unregisterExtension \"Console\""}));
        QVERIFY(!rig.console.isActive());
        QVERIFY(!rig.console.isShown());
        QVERIFY(!dock->isVisible());
        QVERIFY(!static_cast<QDockWidget*>(dock)->widget());
    }

    void showsAndHidesItsDock()
    {
        ConsoleRig rig;
        QWidget* const dock = rig.view().window();
        rig.console.hide();
        QVERIFY(!dock->isVisible());
        rig.console.show();
        QVERIFY(dock->isVisible());
    }

    void theStreamsAreListenedToWhileItIsActiveOnly()
    {
        std::streambuf* const out = std::cout.rdbuf();
        std::streambuf* const err = std::cerr.rdbuf();
        ConsoleRig rig(ConsoleRig::Created);
        QCOMPARE(std::cout.rdbuf(), out);
        rig.console.activate();
        QVERIFY(std::cout.rdbuf() != out);
        QVERIFY(std::cerr.rdbuf() != err);
        rig.console.deactivate();
        QCOMPARE(std::cout.rdbuf(), out);
        QCOMPARE(std::cerr.rdbuf(), err);
    }

    void activatingTwiceListensOnce()
    {
        std::streambuf* const out = std::cout.rdbuf();
        ConsoleRig rig;
        rig.host.shell.calls.clear();
        rig.console.activate();
        QCOMPARE(rig.host.shell.calls, QStringList());
        std::cout << "once";
        QCOMPARE(rig.lines(), QStringList{"once"});
        rig.console.deactivate();
        QCOMPARE(std::cout.rdbuf(), out);
    }

    void deactivatingTwiceDoesNothingTheSecondTime()
    {
        ConsoleRig rig;
        rig.console.deactivate();
        rig.host.shell.calls.clear();
        rig.console.deactivate();
        QCOMPARE(rig.host.shell.calls, QStringList());
    }

    void releasingWithoutHavingBuiltAnythingIsHarmless()
    {
        TvkConsole console;
        console.deactivate();
        console.releaseWidgets();
        console.hide();
        console.show();
        QVERIFY(!console.isActive());
    }

    void theFormerHandlersAreBackAfterRelease()
    {
        static int data;
        SoErrorCB* const formerCallback = SoReadError::getHandlerCallback();
        void* const formerData = SoReadError::getHandlerData();
        SoReadError::setHandlerCallback(heard, &data);
        const auto before = handlers();
        {
            ConsoleRig rig;
            const auto during = handlers();
            for (const auto& [callback, console] : during) {
                QVERIFY(callback != heard);
                QVERIFY(callback == during.front().first);
                QCOMPARE(console, static_cast<void*>(&rig.console));
            }
            rig.console.deactivate();
            QVERIFY(handlers() == during);
            rig.console.releaseWidgets();
            QVERIFY(handlers() == before);
        }
        SoReadError::setHandlerCallback(formerCallback, formerData);
    }

    void theFormerHandlersAreBackAlsoWhenAnotherLibraryHasReplacedThem()
    {
        const auto before = handlers();
        static int data;
        ConsoleRig rig;
        SoDebugError::setHandlerCallback(heard, &data);
        SoGLError::setHandlerCallback(heard, &data);
        rig.console.deactivate();
        rig.console.releaseWidgets();
        QVERIFY(handlers() == before);
    }

    void everythingIsPutBackWhenItIsDestroyedWhileActive()
    {
        const auto before = handlers();
        std::streambuf* const out = std::cout.rdbuf();
        std::streambuf* const err = std::cerr.rdbuf();
        RecordingHost host;
        auto console = std::make_unique<TvkConsole>();
        console->createWidgets();
        const std::unique_ptr<QWidget> dock(console->m_consoleOutput->window());
        console->activate();
        console.reset();
        QVERIFY(handlers() == before);
        QCOMPARE(std::cout.rdbuf(), out);
        QCOMPARE(std::cerr.rdbuf(), err);
    }

    void everythingIsPutBackWhenItIsReleasedWhileActive()
    {
        const auto before = handlers();
        std::streambuf* const out = std::cout.rdbuf();
        ConsoleRig rig;
        rig.console.releaseWidgets();
        QVERIFY(handlers() == before);
        QCOMPARE(std::cout.rdbuf(), out);
    }

    void comesBackAfterEachEnd()
    {
        ConsoleRig rig;
        for (int i = 0; i < 3; ++i) {
            rig.console.deactivate();
            rig.console.releaseWidgets();
            rig.console.createWidgets();
            rig.console.activate();
            std::cout << "again";
            QCOMPARE(rig.lines(), QStringList{"again"});
        }
    }

    void keepsWhatIsShownWhileItIsInactive()
    {
        ConsoleRig rig;
        std::cout << "before";
        rig.console.deactivate();
        rig.console.activate();
        std::cout << "after";
        QCOMPARE(rig.lines(), QStringList({"before", "after"}));
    }

    void aToggleSwitchesItsKindOffAndOnAgain()
    {
        ConsoleRig rig;
        click(rig, "m_errorsButton");
        std::cerr << "unseen error";
        std::cout << "information";
        click(rig, "m_errorsButton");
        click(rig, "m_infosButton");
        std::cerr << "error";
        std::cout << "unseen information";
        QCOMPARE(rig.lines(), QStringList({"information", "error"}));
    }

    void keepsTogglesThatInvertWhateverTheirButtonsSay()
    {
        ConsoleRig rig;
        rig.console.outputErrors();
        QVERIFY(button(rig, "m_errorsButton")->isChecked());
        std::cerr << "unseen";
        click(rig, "m_errorsButton");
        QVERIFY(!button(rig, "m_errorsButton")->isChecked());
        std::cerr << "seen";
        QCOMPARE(rig.lines(), QStringList{"seen"});
    }

    void clearEmptiesTheView()
    {
        ConsoleRig rig;
        std::cout << "text";
        click(rig, "m_clearButton");
        QCOMPARE(rig.view().toPlainText(), QString());
        std::cout << "new";
        QCOMPARE(rig.lines(), QStringList{"new"});
    }

    void saveWritesWhatIsSeenInLatin1()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("console.txt"));
        ConsoleRig rig;
        std::cout << "Größe\n5 µm";
        click(rig, "m_errorsButton");
        std::cerr << "unseen";
        const ModalDialog dialog([&](QDialog& files) {
            QCOMPARE(files.windowTitle(), QStringLiteral("Save the content of the console"));
            QCOMPARE(static_cast<QFileDialog&>(files).nameFilters(),
                     QStringList{"Console outputs (*.txt)"});
            choose(path)(files);
        });
        click(rig, "m_saveButton");
        QVERIFY(dialog.wasUp());
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("Gr\xf6\xdf"
                                            "e\n5 \xb5m"));
    }

    void theUserIsToldOfCharactersThatCouldNotBeSaved()
    {
        const QTemporaryDir folder;
        ConsoleRig rig;
        std::cout << "5 €";
        QString said;
        const ModalDialog dialog(choose(folder.filePath(QStringLiteral("console.txt"))));
        QTimer::singleShot(100, &rig.console, [&] { said = closedBoxText(); });
        click(rig, "m_saveButton");
        QVERIFY2(said.contains(QStringLiteral("Latin-1")), qPrintable(said));
    }

    void theUserIsToldWhenTheFileCannotBeWritten()
    {
        ConsoleRig rig;
        std::cout << "text";
        QString said;
        const ModalDialog dialog([&](QDialog& files) {
            // The dialog itself would refuse a folder that is not there.
            const QTemporaryDir gone;
            auto* const line = files.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            line->setText(QStringLiteral("/proc/console.txt"));
            QMetaObject::invokeMethod(&files, "accept");
        });
        QTimer::singleShot(100, &rig.console, [&] { said = closedBoxText(); });
        click(rig, "m_saveButton");
        QVERIFY2(said.contains(QStringLiteral("could not be written")), qPrintable(said));
    }

    void aCancelledSaveWritesNothing()
    {
        ConsoleRig rig;
        const ModalDialog dialog([](QDialog& files) { files.reject(); });
        click(rig, "m_saveButton");
        QVERIFY(dialog.wasUp());
        QCOMPARE(rig.view().toPlainText(), QString());
    }

    void everyControlIsReachedWithTab()
    {
        ConsoleRig rig;
        QWidget* const window = rig.view().window();
        window->activateWindow();
        button(rig, "m_errorsButton")->setFocus();
        QStringList reached;
        for (int i = 0; i < 6; ++i) {
            reached << window->focusWidget()->objectName();
            QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(reached, QStringList({"m_errorsButton", "m_warningsButton", "m_infosButton",
                                       "m_clearButton", "m_saveButton", "m_consoleOutput"}));
    }

private:
    static QString closedBoxText()
    {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return QStringLiteral("(no box)");
        const QString text = box->text();
        box->accept();
        return text;
    }
};

TAVRIK_TEST_MAIN(tst_TvkConsole)
#include "tst_TvkConsole.moc"
