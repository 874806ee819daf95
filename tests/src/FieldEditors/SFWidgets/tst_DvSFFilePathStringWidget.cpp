#include "tests/support/LineChecks.h"
#include "tests/support/ModalDialog.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFFilePathStringWidget.h"

#include <QFileDialog>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextCodec>

class tst_DvSFFilePathStringWidget : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    static QLineEdit* line(const EditorRig& rig) { return rig.find<QLineEdit>("lineEdit"); }

    static QPushButton* button(const EditorRig& rig)
    {
        return rig.find<QPushButton>("openFileButton");
    }

    static QByteArray path(const EditorRig& rig)
    {
        return rig.node->sfFilePathString.getValue().getString();
    }

    static void show(const EditorRig& rig, const QString& shown)
    {
        rig.node->sfFilePathString.setValue(shown.toUtf8().constData());
        EditorRig::runSensors();
    }

    /** The path of a new file in the test's folder. */
    QString newFile(const QString& name) const
    {
        QFile file(m_folder.filePath(name));
        QDir().mkpath(QFileInfo(file).absolutePath());
        const bool opened = file.open(QIODevice::WriteOnly);
        return opened ? file.fileName() : QString();
    }

    /** Types the path into the dialog and closes it with its button. */
    static ModalDialog::Action choosing(const QString& chosen)
    {
        return [chosen](QDialog& dialog) {
            auto* const name = dialog.findChild<QLineEdit*>("fileNameEdit");
            QVERIFY(name);
            name->setText(chosen);
            dialog.accept();
        };
    }

private slots:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
        SoEveryField::initClass();
        QVERIFY(m_folder.isValid());
        m_folder.setAutoRemove(true);
        QVERIFY(QDir::setCurrent(m_folder.path()));
    }

    void cleanupTestCase() { QVERIFY(QDir::setCurrent(QStringLiteral("/"))); }

    void showsThePathBesideASmallButton()
    {
        DvSFFilePathStringWidget editor;
        EditorRig rig(editor, "sfFilePathString");
        QCOMPARE(line(rig)->text(), QStringLiteral("scene.iv"));
        QCOMPARE(button(rig)->maximumSize(), QSize(20, 20));
        QVERIFY(!button(rig)->icon().isNull());
        QCOMPARE(button(rig)->toolTip(), QStringLiteral("Choose a file"));
    }

    void aTypedPathIsCommittedOnce()
    {
        DvSFFilePathStringWidget editor;
        EditorRig rig(editor, "sfFilePathString");
        EditorRig::type(line(rig), "there/is no.such file");
        QTest::keyClick(line(rig), Qt::Key_Return);
        rig.leave();
        QCOMPARE(path(rig), QByteArray("there/is no.such file"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void visitingAndLeavingCommitsNothing()
    {
        DvSFFilePathStringWidget editor;
        EditorRig rig(editor, "sfFilePathString");
        line(rig)->setFocus();
        rig.leave();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void aChosenPathIsCommittedOnce()
    {
        DvSFFilePathStringWidget editor;
        EditorRig rig(editor, "sfFilePathString");
        const QString chosen = newFile(QStringLiteral("chosen.iv"));
        const ModalDialog dialog(choosing(chosen));
        QTest::mouseClick(button(rig), Qt::LeftButton);
        QVERIFY(dialog.wasUp());
        QCOMPARE(path(rig), chosen.toUtf8());
        QCOMPARE(line(rig)->text(), chosen);
        rig.leave();
        EditorRig::runSensors();
        QCOMPARE(rig.host.services.count(), 1);
        QCOMPARE(rig.host.services.at(0).getField(), rig.field);
    }

    void choosingTheSamePathAgainCommitsNothing()
    {
        DvSFFilePathStringWidget editor;
        EditorRig rig(editor, "sfFilePathString");
        const QString chosen = newFile(QStringLiteral("same.iv"));
        show(rig, chosen);
        const ModalDialog dialog(choosing(chosen));
        editor.openFileDialog();
        QVERIFY(dialog.wasUp());
        QCOMPARE(rig.host.services.count(), 0);
    }

    void whatWasTypedBeforeTheDialogIsCommittedByLeavingTheLine()
    {
        DvSFFilePathStringWidget editor;
        EditorRig rig(editor, "sfFilePathString");
        EditorRig::type(line(rig), "typed.iv");
        button(rig)->setFocus();
        const ModalDialog dialog([](QDialog& shown) { shown.reject(); });
        QTest::mouseClick(button(rig), Qt::LeftButton);
        QCOMPARE(path(rig), QByteArray("typed.iv"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void keepsTheNewPathWhenUndone()
    {
        DvSFFilePathStringWidget editor;
        EditorRig rig(editor, "sfFilePathString");
        LineChecks::keepsTheNewValueWhenUndone(rig, line(rig), QStringLiteral("new.iv"));
    }

    void theDialogIsCalledOpenFileAndBelongsToTheFrame()
    {
        DvSFFilePathStringWidget editor;
        EditorRig rig(editor, "sfFilePathString");
        QString title;
        QWidget* parent = nullptr;
        const ModalDialog dialog([&title, &parent](QDialog& shown) {
            title = shown.windowTitle();
            parent = shown.parentWidget();
        });
        editor.openFileDialog();
        QCOMPARE(title, QStringLiteral("Open File"));
        QCOMPARE(parent, editor.getWidget());
    }

    void theDialogBeginsInThePathsFolder_data()
    {
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("began");
        QTest::newRow("no path") << QString() << m_folder.path();
        QTest::newRow("a name alone") << QStringLiteral("scene.iv") << m_folder.path();
        QTest::newRow("relative") << QStringLiteral("sub/scene.iv") << m_folder.filePath("sub");
        QTest::newRow("absolute") << m_folder.filePath("sub/scene.iv") << m_folder.filePath("sub");
    }

    void theDialogBeginsInThePathsFolder()
    {
        QFETCH(QString, shown);
        QFETCH(QString, began);
        QVERIFY(!newFile(QStringLiteral("sub/scene.iv")).isEmpty());
        DvSFFilePathStringWidget editor;
        EditorRig rig(editor, "sfFilePathString");
        show(rig, shown);
        QString folder;
        const ModalDialog dialog([&folder](QDialog& open) {
            folder = static_cast<QFileDialog&>(open).directory().absolutePath();
        });
        editor.openFileDialog();
        QCOMPARE(folder, QFileInfo(began).canonicalFilePath());
        QCOMPARE(rig.host.services.count(), 0);
    }

    void cancellingChangesNothing()
    {
        DvSFFilePathStringWidget editor;
        EditorRig rig(editor, "sfFilePathString");
        const ModalDialog dialog([](QDialog& shown) { shown.reject(); });
        QTest::mouseClick(button(rig), Qt::LeftButton);
        QVERIFY(dialog.wasUp());
        QCOMPARE(path(rig), QByteArray("scene.iv"));
        QCOMPARE(line(rig)->text(), QStringLiteral("scene.iv"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void aPathBeyondAsciiIsChosenAndComesBack()
    {
        DvSFFilePathStringWidget editor;
        EditorRig rig(editor, "sfFilePathString");
        const QString chosen = newFile(QStringLiteral(u"gr\u00fcn \u20ac \U0001d11e.iv"));
        QVERIFY(!chosen.isEmpty());
        const ModalDialog dialog(choosing(chosen));
        editor.openFileDialog();
        QCOMPARE(path(rig), chosen.toUtf8());
        rig.node->sfFilePathString = "between";
        rig.host.services.redo(0);
        EditorRig::runSensors();
        QCOMPARE(path(rig), chosen.toUtf8());
        QCOMPARE(line(rig)->text(), chosen);
    }

    void aPathThatEndsInABackslashIsKept()
    {
        DvSFFilePathStringWidget editor;
        EditorRig rig(editor, "sfFilePathString");
        EditorRig::type(line(rig), "C:\\scenes\\");
        QTest::keyClick(line(rig), Qt::Key_Return);
        QCOMPARE(path(rig), QByteArray("C:\\scenes\\"));
        rig.node->sfFilePathString = "between";
        rig.host.services.redo(0);
        QCOMPARE(path(rig), QByteArray("C:\\scenes\\"));
    }

    void aFieldSelectedWhileTheDialogIsOpenKeepsItsPath()
    {
        DvSFFilePathStringWidget editor;
        EditorRig rig(editor, "sfFilePathString");
        auto* const second = new SoEveryField;
        second->ref();
        const QString chosen = newFile(QStringLiteral("chosen.iv"));
        const ModalDialog dialog([&rig, second, chosen](QDialog& shown) {
            rig.edit(second->sfFilePathString);
            choosing(chosen)(shown);
        });
        editor.openFileDialog();
        QVERIFY(dialog.wasUp());
        QCOMPARE(path(rig), QByteArray("scene.iv"));
        QCOMPARE(second->sfFilePathString.getValue().getString(), "scene.iv");
        QCOMPARE(line(rig)->text(), QStringLiteral("scene.iv"));
        QCOMPARE(rig.host.services.count(), 0);
        second->unref();
    }

    void theContainerMayDieWhileTheDialogIsOpen()
    {
        DvSFFilePathStringWidget editor;
        EditorRig rig(editor, "sfFilePathString");
        const QString chosen = newFile(QStringLiteral("chosen.iv"));
        const ModalDialog dialog([&rig, chosen](QDialog& shown) {
            rig.killNode();
            choosing(chosen)(shown);
        });
        editor.openFileDialog();
        QVERIFY(dialog.wasUp());
        QCOMPARE(rig.host.services.count(), 0);
        QVERIFY(!editor.getWidget()->isEnabled());
    }
};

TAVRIK_TEST_MAIN(tst_DvSFFilePathStringWidget)
#include "tst_DvSFFilePathStringWidget.moc"
