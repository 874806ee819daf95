#include "tests/support/EditorRig.h"
#include "tests/support/TestMain.h"

#include "FieldEditors/SFWidgets/DvSFEnumWidget.h"

#include <Inventor/nodes/SoDrawStyle.h>
#include <Inventor/nodes/SoMaterialBinding.h>

#include <QAbstractItemView>
#include <QComboBox>

class tst_DvSFEnumWidget : public QObject
{
    Q_OBJECT

private:
    static QComboBox* box(const EditorRig& rig) { return rig.find<QComboBox>("comboBox"); }

    static QStringList items(const EditorRig& rig)
    {
        QStringList texts;
        for (int i = 0; i < box(rig)->count(); ++i)
            texts << box(rig)->itemText(i);
        return texts;
    }

    /** Chooses from the opened list, as a user does. */
    static void choose(const EditorRig& rig, const char* name)
    {
        QComboBox* const combo = box(rig);
        combo->showPopup();
        const int row = combo->findText(QLatin1String(name));
        combo->view()->setCurrentIndex(combo->model()->index(row, 0));
        QTest::keyClick(combo->view(), Qt::Key_Return);
    }

    static int value(const EditorRig& rig) { return rig.node->sfEnum.getValue(); }

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void listsTheNamesInTheFieldsOrder()
    {
        DvSFEnumWidget editor;
        EditorRig rig(editor, "sfEnum");
        QCOMPARE(items(rig), QStringList({"FIRST", "SECOND", "THIRD"}));
        QVERIFY(!box(rig)->isEditable());
    }

    void selectsTheNameOfTheValue()
    {
        DvSFEnumWidget editor;
        EditorRig rig(editor, "sfEnum");
        for (const char* name : {"THIRD", "FIRST", "SECOND"}) {
            QVERIFY(rig.field->set(name));
            EditorRig::runSensors();
            QCOMPARE(box(rig)->currentText(), QString(name));
        }
        QCOMPARE(rig.host.services.count(), 0);
    }

    void isRefilledForEachField()
    {
        DvSFEnumWidget editor;
        EditorRig rig(editor, "sfEnum");
        auto* const style = new SoDrawStyle;
        style->ref();
        style->style = SoDrawStyle::LINES;
        rig.edit(style->style);
        QCOMPARE(items(rig), QStringList({"FILLED", "LINES", "POINTS", "INVISIBLE"}));
        QCOMPARE(box(rig)->currentText(), QStringLiteral("LINES"));
        rig.edit(rig.node->sfEnum);
        QCOMPARE(items(rig), QStringList({"FIRST", "SECOND", "THIRD"}));
        QCOMPARE(style->style.getValue(), int(SoDrawStyle::LINES));
        QCOMPARE(rig.host.services.count(), 0);
        style->unref();
    }

    void choosingANameCommitsOnce()
    {
        DvSFEnumWidget editor;
        EditorRig rig(editor, "sfEnum");
        choose(rig, "THIRD");
        QCOMPARE(value(rig), int(SoEveryField::THIRD));
        EditorRig::runSensors();
        rig.leave();
        QCOMPARE(rig.host.services.count(), 1);
        QCOMPARE(box(rig)->currentText(), QStringLiteral("THIRD"));
    }

    void keepsTheChosenNameWhenUndone()
    {
        DvSFEnumWidget editor;
        EditorRig rig(editor, "sfEnum");
        choose(rig, "THIRD");
        rig.host.services.undo(0);
        QCOMPARE(value(rig), int(SoEveryField::THIRD));
    }

    void choosesByTheArrowKeys()
    {
        DvSFEnumWidget editor;
        EditorRig rig(editor, "sfEnum");
        rig.node->sfEnum = SoEveryField::FIRST;
        EditorRig::runSensors();
        box(rig)->setFocus();
        QTest::keyClick(box(rig), Qt::Key_Down);
        QCOMPARE(value(rig), int(SoEveryField::SECOND));
        QTest::keyClick(box(rig), Qt::Key_Up);
        QCOMPARE(value(rig), int(SoEveryField::FIRST));
        QCOMPARE(rig.host.services.count(), 2);
    }

    void choosesByTheFirstLetters()
    {
        DvSFEnumWidget editor;
        EditorRig rig(editor, "sfEnum");
        box(rig)->setFocus();
        QTest::keyClicks(box(rig), "th");
        QCOMPARE(value(rig), int(SoEveryField::THIRD));
    }

    void visitingAndLeavingCommitsNothing()
    {
        DvSFEnumWidget editor;
        EditorRig rig(editor, "sfEnum");
        box(rig)->setFocus();
        box(rig)->showPopup();
        QTest::keyClick(box(rig)->view(), Qt::Key_Escape);
        rig.leave();
        QCOMPARE(rig.host.services.count(), 0);
    }

    void theWheelPassesOverABoxWithoutTheFocus()
    {
        DvSFEnumWidget editor;
        EditorRig rig(editor, "sfEnum");
        rig.node->sfEnum = SoEveryField::FIRST;
        EditorRig::runSensors();
        const auto wheel = [&rig] {
            QWheelEvent event({4, 4}, box(rig)->mapToGlobal(QPoint(4, 4)), {}, {0, -120},
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(box(rig), &event);
        };
        wheel();
        QCOMPARE(value(rig), int(SoEveryField::FIRST));
        box(rig)->setFocus();
        wheel();
        QCOMPARE(value(rig), int(SoEveryField::SECOND));
    }

    void anotherNameForTheSameValueShowsAsTheFirst()
    {
        DvSFEnumWidget editor;
        EditorRig rig(editor, "sfEnum");
        auto* const binding = new SoMaterialBinding;
        binding->ref();
        rig.edit(binding->value);
        for (const QString& name : items(rig)) {
            choose(rig, qPrintable(name));
            const int chosen = binding->value.getValue();
            SbString text;
            binding->value.get(text);
            QCOMPARE(box(rig)->currentText(), QString(text.getString()));
            QVERIFY(binding->value.set(qPrintable(name)));
            QCOMPARE(binding->value.getValue(), chosen);
        }
        QCOMPARE(rig.host.services.count(), items(rig).size());
        binding->unref();
    }

    void aValueWithoutANameIsShownAsItsNumber()
    {
        DvSFEnumWidget editor;
        EditorRig rig(editor, "sfEnum");
        rig.node->sfEnum.setValue(99);
        EditorRig::runSensors();
        QCOMPARE(box(rig)->currentIndex(), -1);
        QCOMPARE(box(rig)->placeholderText(), QStringLiteral("99"));
        rig.node->sfEnum.setValue(-3);
        EditorRig::runSensors();
        QCOMPARE(box(rig)->placeholderText(), QStringLiteral("-3"));
        rig.node->sfEnum.setValue(SoEveryField::SECOND);
        EditorRig::runSensors();
        QCOMPARE(box(rig)->currentText(), QStringLiteral("SECOND"));
    }

    void theNumberCanBeSeen()
    {
        DvSFEnumWidget editor;
        EditorRig rig(editor, "sfEnum");
        const auto pictureOf = [&rig](int number) {
            rig.node->sfEnum.setValue(number);
            EditorRig::runSensors();
            return box(rig)->grab().toImage();
        };
        const QImage picture = pictureOf(99);
        QVERIFY(picture != pictureOf(98));
        QVERIFY(picture == pictureOf(99));
    }

    void aValueWithoutANameIsNotChangedByLooking()
    {
        DvSFEnumWidget editor;
        EditorRig rig(editor, "sfEnum");
        rig.node->sfEnum.setValue(99);
        EditorRig::runSensors();
        box(rig)->setFocus();
        QTest::keyClick(box(rig), Qt::Key_Return);
        editor.setCommandValue();
        rig.leave();
        rig.edit();
        QCOMPARE(value(rig), 99);
        QCOMPARE(rig.host.services.count(), 0);
        choose(rig, "FIRST");
        QCOMPARE(value(rig), int(SoEveryField::FIRST));
    }

    void aFieldWithoutNamesShowsItsNumber()
    {
        DvSFEnumWidget editor;
        EditorRig rig(editor, "sfEnum");
        SoSFEnum nameless;
        nameless.setValue(4);
        rig.edit(nameless);
        QCOMPARE(box(rig)->count(), 0);
        QCOMPARE(box(rig)->placeholderText(), QStringLiteral("4"));
        QTest::keyClick(box(rig), Qt::Key_Down);
        QCOMPARE(nameless.getValue(), 4);
        rig.edit(rig.node->sfEnum);
    }
};

TAVRIK_TEST_MAIN(tst_DvSFEnumWidget)
#include "tst_DvSFEnumWidget.moc"
