#include "tests/support/SliderEditors.h"
#include "tests/support/TestMain.h"
#include "tests/support/WheelTurn.h"

/** The six editors whose edition area holds a slider: what they show, typing, wheel and keys. */
class tst_DvSFSliderWidgets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void theEditionAreaHoldsTheSlider_data() { SliderEditors::addRows(); }
    void theEditionAreaHoldsTheSlider()
    {
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        auto* const area = rig.find<QFrame>("m_editionFrame");
        QCOMPARE(area->findChildren<QFrame*>("DvSliderFrame").size(), 1);
        QCOMPARE(area->layout()->objectName(), QStringLiteral("editLayout"));
        QCOMPARE(area->layout()->itemAt(0)->widget()->objectName(),
                 QStringLiteral("DvSliderFrame"));
    }

    void aFloatIsShownWithSixDecimals()
    {
        DvSFFloatWidget editor;
        EditorRig rig(editor, "sfFloat");
        QCOMPARE(lineOf(rig)->text(), QStringLiteral("1.500000"));
        QCOMPARE(lineOf(rig)->cursorPosition(), 0);
    }

    void aDoubleIsShownWithFifteenSignificantDigits()
    {
        DvSFDoubleWidget editor;
        EditorRig rig(editor, "sfDouble");
        rig.node->sfDouble.setValue(1.0 / 3.0);
        EditorRig::runSensors();
        QCOMPARE(lineOf(rig)->text(), QStringLiteral("0.333333333333333"));
    }

    void aTypedNumberIsCommittedOnceByReturnOrByLeaving_data() { SliderEditors::addRows(); }
    void aTypedNumberIsCommittedOnceByReturnOrByLeaving()
    {
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        enterNumber(rig, QStringLiteral("3"));
        rig.leave();
        QCOMPARE(rig.host.services.count(), 1);
        EditorRig::type(lineOf(rig), QStringLiteral("5"));
        rig.leave();
        EditorRig::runSensors();
        QCOMPARE(rig.host.services.count(), 2);
        QVERIFY(!editor->hasPendingEdit());
        QVERIFY(lineOf(rig)->text().startsWith(QLatin1Char('5')));
    }

    void keepsATypedValueWhenItIsUndone_data() { SliderEditors::addRows(); }
    void keepsATypedValueWhenItIsUndone()
    {
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        enterNumber(rig, QStringLiteral("3"));
        const QString typed = rig.text();
        rig.host.services.undo(0);
        QCOMPARE(rig.text(), typed);
    }

    void aTypedTextSurvivesAnOutsideChangeAndIsCommitted_data() { SliderEditors::addRows(); }
    void aTypedTextSurvivesAnOutsideChangeAndIsCommitted()
    {
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        EditorRig::type(lineOf(rig), QStringLiteral("3"));
        QVERIFY(rig.field->set("9"));
        EditorRig::runSensors();
        QCOMPARE(lineOf(rig)->text(), QStringLiteral("3"));
        QVERIFY(editor->hasPendingEdit());
        QTest::keyClick(lineOf(rig), Qt::Key_Return);
        QVERIFY(rig.text() == QLatin1String("3") || rig.text() == QLatin1String("0x3"));
        QCOMPARE(rig.host.services.count(), 1);
    }

    void textThatIsNoNumberIsZeroButUnsignedKeepsItsValue_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("after");
        QTest::newRow("float") << 0 << "0";
        QTest::newRow("double") << 1 << "0";
        QTest::newRow("int32") << 2 << "0";
        QTest::newRow("uint32") << 3 << "0x7";
        QTest::newRow("short") << 4 << "0";
        QTest::newRow("ushort") << 5 << "0x7";
    }
    void textThatIsNoNumberIsZeroButUnsignedKeepsItsValue()
    {
        QFETCH(QString, after);
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        // A pasted text: the validators let nobody type it.
        lineOf(rig)->setText(QStringLiteral("wood"));
        lineOf(rig)->setModified(true);
        editor->applyChanges();
        QCOMPARE(rig.text(), after);
    }

    void hexadecimalTypingGoesToTheFieldAsItsNumber_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("after");
        QTest::newRow("int32") << 2 << "31";
        QTest::newRow("uint32") << 3 << "0x1f";
        QTest::newRow("short") << 4 << "31";
        QTest::newRow("ushort") << 5 << "0x1f";
    }
    void hexadecimalTypingGoesToTheFieldAsItsNumber()
    {
        QFETCH(QString, after);
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        enterNumber(rig, QStringLiteral("0x1F"));
        QCOMPARE(rig.text(), after);
        QCOMPARE(lineOf(rig)->text(), QStringLiteral("1F"));
        const QString before = rig.text();
        dragThumb(rig, 30);
        undoAll(rig);
        QCOMPARE(rig.text(), before);
    }

    void theWheelTurnsTheValueWithTheFocusOnly_data() { SliderEditors::addRows(); }
    void theWheelTurnsTheValueWithTheFocusOnly()
    {
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        const QString before = rig.text();
        rig.leave();
        turnWheel(*thumbOf(rig));
        QCOMPARE(rig.text(), before);
        QVERIFY(!thumbOf(rig)->hasFocus());
        thumbOf(rig)->setFocus();
        turnWheel(*thumbOf(rig));
        QVERIFY(rig.text() != before);
        QCOMPARE(rig.host.services.count(), 1);
    }

    void theArrowKeysStepAndKeepNoFormerText_data() { SliderEditors::addRows(); }
    void theArrowKeysStepAndKeepNoFormerText()
    {
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        const QString before = rig.text();
        thumbOf(rig)->setFocus();
        QTest::keyClick(thumbOf(rig), Qt::Key_Right);
        const QString after = rig.text();
        QVERIFY(after != before);
        QCOMPARE(rig.host.services.count(), 1);
        rig.host.services.undo(0);
        QCOMPARE(rig.text(), after);
    }
};

TAVRIK_TEST_MAIN(tst_DvSFSliderWidgets)
#include "tst_DvSFSliderWidgets.moc"
