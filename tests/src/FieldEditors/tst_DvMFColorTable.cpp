#include "tests/support/ModalDialog.h"
#include "tests/support/TableRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/MFWidgets/DvMFColorWidget.h"

#include <QColorDialog>
#include <QPainter>

#include <limits>
#include <memory>

/** Takes no colour. */
class Nobody final : public DvColorOwner
{
    void setColor(int, const QColor&) override {}
};

class tst_DvMFColorTable : public QObject
{
    Q_OBJECT

private:
    static DvMFColorTable& colorTable(const TableRig& rig)
    {
        return static_cast<DvMFColorTable&>(rig.table());
    }

    static void clickCell(const TableRig& rig, int row, int column)
    {
        QTest::mouseClick(rig.table().viewport(), Qt::LeftButton, Qt::NoModifier,
                          rig.table().visualItemRect(rig.table().item(row, column)).center());
        ModalDialog::waitForEnd();
    }

    static ModalDialog::Action choose(const QColor& color)
    {
        return [color](QDialog& dialog) {
            static_cast<QColorDialog&>(dialog).setCurrentColor(color);
            dialog.accept();
        };
    }

    /** What the user does with the dialog when there is nothing left to choose for. */
    static void chooseInVain(const QPointer<QDialog>& dialog)
    {
        if (dialog)
            choose(Qt::white)(*dialog);
    }

private slots:
    void initTestCase()
    {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        SoEveryField::initClass();
    }

    void keepsTheDefaultNameOfTheBase()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        Nobody nobody;
        const DvMFColorTable table(editor, nobody, nullptr);
        QCOMPARE(table.objectName(), QStringLiteral("DvMFieldTable"));
        const DvMFColorTable named(editor, nobody, nullptr, "colours");
        QCOMPARE(named.objectName(), QStringLiteral("colours"));
    }

    void theSlotNamesItsArguments()
    {
        const QMetaObject& meta = DvMFColorTable::staticMetaObject;
        const int slot = meta.indexOfSlot("getColorFromEditor(int,int)");
        QVERIFY(slot >= meta.methodOffset());
        QCOMPARE(meta.method(slot).parameterNames(), (QList<QByteArray>{"row", "col"}));
    }

    void aRowsCellsMakeItsColour()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        QCOMPARE(colorTable(rig).rowColor(0), QColor(255, 0, 127, 255));
        rig.field->set1(0, "2 -1 0.25");
        QCOMPARE(colorTable(rig).rowColor(0), QColor(255, 0, 63, 255));
        rig.node->mfColor.set1Value(0, 7.0F, -3.0F, std::numeric_limits<float>::quiet_NaN());
        QCOMPARE(colorTable(rig).rowColor(0), QColor(255, 0, 0, 255));
    }

    void theDialogStartsWithTheRowsColour()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        QColor shown;
        QString title;
        const QWidget* parent = nullptr;
        const ModalDialog dialog([&](QDialog& opened) {
            shown = static_cast<QColorDialog&>(opened).currentColor();
            title = opened.windowTitle();
            parent = opened.parentWidget();
        });
        clickCell(rig, 2, 0);
        QVERIFY(dialog.wasUp());
        QCOMPARE(shown, QColor(63, 127, 191));
        QCOMPARE(title, QStringLiteral("color dialog"));
        QCOMPARE(parent, static_cast<const QWidget*>(&rig.table()));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void theChosenColourIsWrittenAsOneCommand()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        const ModalDialog dialog(choose(QColor(255, 51, 0)));
        clickCell(rig, 1, 0);
        QCOMPARE(rig.rows().at(1), QByteArray("1 0.2 0"));
        QCOMPARE(rig.rows().at(0), QByteArray("1 0 0.5"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void onlyTheFirstColumnOpensTheDialog()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        const ModalDialog dialog(choose(Qt::white));
        clickCell(rig, 1, 1);
        clickCell(rig, 1, 2);
        QTest::qWait(20);
        QVERIFY(!dialog.wasUp());
        QCOMPARE(rig.host.services.count(), 0);
    }

    void aFieldThatDiesBehindTheDialogGetsNothing()
    {
        DvMFColorWidget editor;
        TableRig rig(editor, "mfColor");
        bool isUp = true;
        const ModalDialog dialog([&](QDialog& opened) {
            const QPointer<QDialog> up(&opened);
            rig.killNode();
            isUp = up && up->isVisible();
            chooseInVain(up);
        });
        clickCell(rig, 1, 0);
        QVERIFY(dialog.wasUp());
        // It would be disabled with the editor, and hold up the user for ever.
        QVERIFY(!isUp);
        QCOMPARE(rig.host.services.count(), 0);
        rig.reviveNode("mfColor");
        QCOMPARE(rig.rows().at(1), QByteArray("0 1 0.5"));
    }

    void anotherFieldGetsNothingFromTheDialog()
    {
        DvMFColorWidget editor;
        TableRig rig(editor, "mfColor");
        auto* const second = new SoEveryField;
        second->ref();
        const QList<QByteArray> before = rig.rows();
        const ModalDialog dialog([&](QDialog& opened) {
            const QPointer<QDialog> up(&opened);
            rig.edit(second->mfColor);
            chooseInVain(up);
        });
        clickCell(rig, 1, 0);
        QVERIFY(dialog.wasUp());
        QCOMPARE(rig.rows(), before);
        QCOMPARE(rowTextsOf(rig.node->mfColor).at(1).simplified(), QByteArray("0 1 0.5"));
        QCOMPARE(rig.host.services.count(), 0);
        editor.deactivate();
        second->unref();
    }

    void theEditorMayDieBehindTheDialog()
    {
        auto editor = std::make_unique<DvMFColorWidget>();
        const TableRig rig(*editor, "mfColor");
        QPointer<QDialog> opened;
        const ModalDialog dialog([&](QDialog& up) {
            opened = &up;
            editor.reset();
        });
        clickCell(rig, 1, 0);
        QVERIFY(dialog.wasUp());
        QVERIFY(!opened);
        QCOMPARE(rig.rows().at(1), QByteArray("0 1 0.5"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void keepsWritingAColourThatIsOnlyConfirmed()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        rig.node->mfColor.set1Value(1, 0.333333343F, 2.0F, 1e-30F);
        TableRig::runSensors();
        QColor confirmed;
        const ModalDialog dialog([&confirmed](QDialog& opened) {
            confirmed = static_cast<QColorDialog&>(opened).currentColor();
            opened.accept();
        });
        clickCell(rig, 1, 0);
        QVERIFY(dialog.wasUp());
        QCOMPARE(rig.host.services.count(), 1);
        const SbColor written = rig.node->mfColor[1];
        QCOMPARE(written[0], float(confirmed.red() / 255.0));
        QCOMPARE(written[1], 1.0F);
        QCOMPARE(written[2], 0.0F);
    }

    void cancellingTheDialogChangesNothing()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        const QList<QByteArray> before = rig.rows();
        const ModalDialog dialog([](QDialog& opened) {
            static_cast<QColorDialog&>(opened).setCurrentColor(Qt::white);
            opened.reject();
        });
        clickCell(rig, 1, 0);
        QVERIFY(dialog.wasUp());
        QCOMPARE(rig.rows(), before);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void thereIsOneDialogAtATime()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        int dialogs = 0;
        const ModalDialog dialog([&](QDialog& opened) {
            colorTable(rig).getColorFromEditor(2, 0);
            dialogs = rig.table().findChildren<QDialog*>().size();
            choose(Qt::white)(opened);
        });
        clickCell(rig, 1, 0);
        QCOMPARE(dialogs, 1);
        QCOMPARE(rig.rows(), (QList<QByteArray>{"1 0 0.5", "1 1 1", "0.25 0.5 0.75"}));
    }

    void aRowThatDoesNotExistHasNoDialog()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        for (const int row : {-1, 3})
            colorTable(rig).getColorFromEditor(row, 0);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void aRowThatGoesBehindTheDialogIsNotWritten()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        const ModalDialog dialog([&](QDialog& opened) {
            rig.field->setNum(1);
            choose(Qt::white)(opened);
        });
        clickCell(rig, 2, 0);
        QCOMPARE(rig.rows(), QList<QByteArray>{"1 0 0.5"});
        QCOMPARE(rig.host.services.count(), 0);
    }

    void aFieldThatIsConnectedBehindTheDialogIsNotWritten()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        auto* const master = new SoEveryField;
        master->ref();
        const ModalDialog dialog([&](QDialog& opened) {
            rig.field->connectFrom(&master->mfColor);
            choose(Qt::white)(opened);
        });
        clickCell(rig, 1, 0);
        QVERIFY(dialog.wasUp());
        QCOMPARE(rig.rows().at(1), QByteArray("0 1 0.5"));
        QCOMPARE(rig.host.services.count(), 0);
        rig.field->disconnect();
        master->unref();
    }

    void aFieldThatIsConnectedHasNoDialog()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        auto* const master = new SoEveryField;
        master->ref();
        rig.field->connectFrom(&master->mfColor);
        TableRig::runSensors();
        const ModalDialog dialog(choose(Qt::white));
        clickCell(rig, 0, 0);
        QTest::qWait(20);
        QVERIFY(!dialog.wasUp());
        rig.field->disconnect();
        master->unref();
    }

    void everyCellOfARowIsFilledWithItsColour()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        for (int column = 0; column < 3; ++column) {
            QImage picture(80, 30, QImage::Format_RGB32);
            QPainter painter(&picture);
            QStyleOptionViewItem option;
            option.initFrom(&rig.table());
            option.rect = picture.rect();
            rig.table().itemDelegate()->paint(&painter, option,
                                              rig.table().model()->index(2, column));
            QCOMPARE(picture.pixelColor(2, 2), QColor(63, 127, 191));
        }
    }

    void aComponentIsTypedIntoALine()
    {
        DvMFColorWidget editor;
        const TableRig rig(editor, "mfColor");
        rig.enter(2, 1, "0.125");
        QCOMPARE(rig.rows().at(2), QByteArray("0.25 0.125 0.75"));
        QCOMPARE(rig.host.services.count(), 1);
    }
};

TAVRIK_TEST_MAIN(tst_DvMFColorTable)
#include "tst_DvMFColorTable.moc"
