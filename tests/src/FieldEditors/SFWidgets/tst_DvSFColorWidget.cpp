#include "tests/support/EditorRig.h"
#include "tests/support/ModalDialog.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFColorWidget.h"

#include <QColorDialog>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <cmath>
#include <limits>

class tst_DvSFColorWidget : public QObject
{
    Q_OBJECT

private:
    static QLineEdit* line(const EditorRig& rig, int i)
    {
        return rig.find<QLineEdit>("SFColorLine", i);
    }

    static QPushButton* swatch(const EditorRig& rig)
    {
        return rig.find<QPushButton>("m_colorDisp");
    }

    static QColor swatchColor(const EditorRig& rig)
    {
        const QPushButton* const button = swatch(rig);
        return button->icon().pixmap(button->iconSize()).toImage().pixelColor(5, 5);
    }

    static SbColor value(const EditorRig& rig) { return rig.node->sfColor.getValue(); }

    static void show(const EditorRig& rig, float red, float green, float blue)
    {
        rig.node->sfColor.setValue(red, green, blue);
        EditorRig::runSensors();
    }

    static ModalDialog::Action choosing(const QColor& color)
    {
        return [color](QDialog& dialog) {
            auto* const colors = qobject_cast<QColorDialog*>(&dialog);
            QVERIFY(colors);
            colors->setCurrentColor(color);
            colors->accept();
        };
    }

    static void clickSwatch(const EditorRig& rig)
    {
        QTest::mouseClick(swatch(rig), Qt::LeftButton);
    }

private slots:
    void initTestCase()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        SoEveryField::initClass();
    }

    void showsThreeLabelledLines()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        show(rig, 0.1F, 0.2F, 0.123456789F);
        const QStringList labels = {"<p align=\"right\">R</p>", "<p align=\"right\">G</p>",
                                    "<p align=\"right\">B</p>"};
        const QStringList texts = {"0.1", "0.2", "0.123457"};
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(rig.find<QLabel>("SFColorLabel", i)->text(), labels.at(i));
            QCOMPARE(line(rig, i)->text(), texts.at(i));
            QCOMPARE(line(rig, i)->cursorPosition(), 0);
        }
    }

    void isLaidOutByTheConstants()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        auto* const layout = editor.getWidget()->findChild<QGridLayout*>("SFColorLayout");
        QVERIFY(layout);
        QCOMPARE(layout->verticalSpacing(), 2);
        QCOMPARE(layout->horizontalSpacing(), 2);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(editor.getWidget()->findChild<QLayout*>("editLayout")->spacing(), 6);
        QCOMPARE(swatch(rig)->size(), QSize(20, 18));
    }

    void theSwatchShowsTheColor()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        QCOMPARE(swatchColor(rig), QColor(63, 127, 191)); // 63.75, 127.5 and 191.25, cut off
        show(rig, 1.0F, 0.0F, 0.999F);
        QCOMPARE(swatchColor(rig), QColor(255, 0, 254));
        const QPushButton* const button = swatch(rig);
        const QImage picture = button->icon().pixmap(button->iconSize()).toImage();
        QCOMPARE(picture.size(), QSize(20, 18));
        QCOMPARE(picture.pixelColor(0, 0), picture.pixelColor(19, 17));
        QCOMPARE(picture.pixelColor(0, 0).alpha(), 255);
    }

    void theSwatchFollowsTypingAndNothingIsCommitted()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        EditorRig::type(line(rig, 0), "1");
        QCOMPARE(swatchColor(rig), QColor(255, 127, 191));
        EditorRig::type(line(rig, 1), "0.");
        QCOMPARE(swatchColor(rig).green(), 0);
        QTest::keyClicks(line(rig, 1), "6");
        QCOMPARE(swatchColor(rig).green(), 153);
        QTest::keyClick(line(rig, 1), Qt::Key_Escape);
        QCOMPARE(swatchColor(rig).green(), 127);
    }

    void typingAloneWritesNothing()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        EditorRig::type(line(rig, 2), "0.5");
        QCOMPARE(swatchColor(rig).blue(), 127);
        EditorRig::runSensors();
        QCOMPARE(rig.text(), QStringLiteral("0.25 0.5 0.75"));
        QCOMPARE(rig.host.services.count(), 0);
        QVERIFY(editor.hasPendingEdit());
    }

    void theChangeSlotsSetTheirComponentOfTheSwatch()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        editor.changeRValue(QStringLiteral("0"));
        editor.changeGValue(QStringLiteral("1"));
        editor.changeBValue(QStringLiteral("none"));
        QCOMPARE(swatchColor(rig), QColor(0, 255, 0));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void returnAndLeavingCommitOnce()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        EditorRig::type(line(rig, 0), "1");
        QTest::keyClick(line(rig, 0), Qt::Key_Return);
        rig.leave();
        QCOMPARE(rig.text(), QStringLiteral("1 0.5 0.75"));
        QCOMPARE(rig.host.services.count(), 1);
        EditorRig::type(line(rig, 1), "0");
        rig.leave();
        QCOMPARE(rig.text(), QStringLiteral("1 0 0.75"));
        QCOMPARE(rig.host.services.count(), 2);
    }

    void componentsOutsideOfZeroToOneAreKeptAndShownAsTheNearestColor()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        show(rig, 2.5F, -1.0F, 1e30F);
        QCOMPARE(swatchColor(rig), QColor(255, 0, 255));
        EditorRig::type(line(rig, 1), "-7");
        QTest::keyClick(line(rig, 1), Qt::Key_Return);
        QCOMPARE(value(rig)[0], 2.5F);
        QCOMPARE(value(rig)[1], -7.0F);
        QCOMPARE(value(rig)[2], 1e30F);
    }

    void componentsThatAreNoNumbersAreKeptAndShownBlack()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        const float infinity = std::numeric_limits<float>::infinity();
        show(rig, std::numeric_limits<float>::quiet_NaN(), infinity, -infinity);
        QCOMPARE(swatchColor(rig), QColor(0, 255, 0));
        EditorRig::type(line(rig, 2), "1");
        QTest::keyClick(line(rig, 2), Qt::Key_Return);
        QVERIFY(std::isnan(value(rig)[0]));
        QCOMPARE(value(rig)[1], infinity);
        QCOMPARE(value(rig)[2], 1.0F);
    }

    void theDialogBeginsWithTheColorAndBelongsToTheFrame()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        QColor began;
        QWidget* parent = nullptr;
        const ModalDialog dialog([&began, &parent](QDialog& shown) {
            began = static_cast<QColorDialog&>(shown).currentColor();
            parent = shown.parentWidget();
        });
        clickSwatch(rig);
        QVERIFY(dialog.wasUp());
        QCOMPARE(began, QColor(63, 127, 191));
        QCOMPARE(parent, editor.getWidget());
    }

    void aChosenColorIsCommittedOnce()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        const ModalDialog dialog(choosing(QColor(255, 51, 0)));
        clickSwatch(rig);
        QVERIFY(dialog.wasUp());
        QCOMPARE(value(rig), SbColor(1.0F, 0.2F, 0.0F));
        QCOMPARE(line(rig, 1)->text(), QStringLiteral("0.2"));
        QCOMPARE(swatchColor(rig), QColor(255, 51, 0));
        EditorRig::runSensors();
        rig.leave();
        QCOMPARE(rig.host.services.count(), 1);
        QCOMPARE(rig.host.services.at(0).getField(), rig.field);
    }

    void cancellingChangesNothing()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        show(rig, 2.5F, -1.0F, 0.1F);
        const ModalDialog dialog([](QDialog& shown) {
            static_cast<QColorDialog&>(shown).setCurrentColor(Qt::green);
            shown.reject();
        });
        clickSwatch(rig);
        QVERIFY(dialog.wasUp());
        QCOMPARE(value(rig), SbColor(2.5F, -1.0F, 0.1F));
        QCOMPARE(line(rig, 0)->text(), QStringLiteral("2.5"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void whatWasTypedBeforeTheDialogIsCommittedByLeavingTheLine()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        EditorRig::type(line(rig, 0), "1");
        swatch(rig)->setFocus();
        QCOMPARE(rig.host.services.count(), 1);
        const ModalDialog dialog([](QDialog& shown) { shown.reject(); });
        clickSwatch(rig);
        QCOMPARE(rig.text(), QStringLiteral("1 0.5 0.75"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    /** What the user chose comes back whenever the dialog opens again. */
    void everyChannelSurvivesDialogFieldSwatchAndDialog()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        QColor before = swatchColor(rig);
        for (int channel = 0; channel < 256; ++channel) {
            const QColor chosen(channel, 255 - channel, (channel * 7) % 256);
            QColor began;
            const ModalDialog dialog([&began, &chosen](QDialog& shown) {
                began = static_cast<QColorDialog&>(shown).currentColor();
                choosing(chosen)(shown);
            });
            clickSwatch(rig);
            QCOMPARE(began, before);
            QCOMPARE(swatchColor(rig), chosen);
            EditorRig::runSensors();
            QCOMPARE(swatchColor(rig), chosen);
            QCOMPARE(value(rig)[0], static_cast<float>(channel / 255.0));
            before = chosen;
        }
        QCOMPARE(rig.host.services.count(), 256);
    }

    void aFieldSelectedWhileTheDialogIsOpenKeepsItsColor()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        auto* const second = new SoEveryField;
        second->ref();
        const ModalDialog dialog([&rig, second](QDialog& shown) {
            rig.edit(second->sfColor);
            choosing(Qt::green)(shown);
        });
        clickSwatch(rig);
        QVERIFY(dialog.wasUp());
        QCOMPARE(rig.text(), QStringLiteral("0.25 0.5 0.75"));
        QCOMPARE(value(rig), SbColor(0.25F, 0.5F, 0.75F));
        QCOMPARE(rig.host.services.count(), 0);
        second->unref();
    }

    void theSameFieldSelectedAnewWhileTheDialogIsOpenKeepsItsColor()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        const ModalDialog dialog([&rig](QDialog& shown) {
            rig.editor.deactivate();
            rig.edit();
            choosing(Qt::green)(shown);
        });
        clickSwatch(rig);
        QCOMPARE(rig.text(), QStringLiteral("0.25 0.5 0.75"));
        QCOMPARE(rig.host.services.count(), 0);
    }

    void theContainerMayDieWhileTheDialogIsOpen()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        bool isClosed = false;
        const ModalDialog dialog([&rig, &isClosed](QDialog& shown) {
            rig.killNode();
            isClosed = !shown.isVisible();
            choosing(Qt::green)(shown);
        });
        clickSwatch(rig);
        QVERIFY(dialog.wasUp());
        QVERIFY(isClosed);
        QVERIFY(!editor.getWidget()->isEnabled());
        QCOMPARE(rig.host.services.count(), 0);
    }

    void anUntouchedComponentKeepsItsBitsBesideAChosenOne()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        show(rig, 0.123456789F, 0.5F, 0.5F);
        EditorRig::type(line(rig, 1), "1");
        QTest::keyClick(line(rig, 1), Qt::Key_Return);
        QCOMPARE(value(rig)[0], 0.123456789F);
    }

    void keepsTheChosenColorWhenUndone()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        const ModalDialog dialog(choosing(Qt::white));
        clickSwatch(rig);
        rig.host.services.undo(0);
        QCOMPARE(rig.text(), QStringLiteral("1 1 1"));
    }

    void theSwatchSaysWhatItIsFor()
    {
        DvSFColorWidget editor;
        EditorRig rig(editor, "sfColor");
        QCOMPARE(swatch(rig)->toolTip(), QStringLiteral("Choose a colour"));
        QCOMPARE(swatch(rig)->text(), QString());
    }
};

TAVRIK_TEST_MAIN(tst_DvSFColorWidget)
#include "tst_DvSFColorWidget.moc"
