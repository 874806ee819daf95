#include "tests/support/FieldBits.h"
#include "tests/support/SliderEditors.h"
#include "tests/support/TestMain.h"

#include <cmath>
#include <limits>

/** Dragging the thumb of the six slider editors, and undoing it. */
class tst_DvSFSliderDrags : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SoEveryField::initClass(); }

    void aDragCommitsAtEveryStepAndOnRelease_data() { SliderEditors::addRows(); }
    void aDragCommitsAtEveryStepAndOnRelease()
    {
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        ThumbDrag hand(thumbOf(rig));
        hand.press();
        hand.moveBy(20);
        QCOMPARE(rig.host.services.count(), 1);
        hand.moveBy(20);
        QCOMPARE(rig.host.services.count(), 2);
        hand.release();
        QCOMPARE(rig.host.services.count(), 3);
    }

    void keepsThePreviousTextInTheFirstStepOfADragOnly_data() { SliderEditors::addRows(); }
    void keepsThePreviousTextInTheFirstStepOfADragOnly()
    {
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        const QString before = rig.text();
        dragThumb(rig, 30);
        const QString after = rig.text();
        QVERIFY(after != before);
        rig.host.services.undo(1); // the release
        QCOMPARE(rig.text(), after);
        rig.host.services.undo(0);
        QCOMPARE(rig.text(), before);
        rig.host.services.redo(0);
        QCOMPARE(rig.text(), after);
    }

    void withoutTheTickADragCommitsOnce_data() { SliderEditors::addRows(); }
    void withoutTheTickADragCommitsOnce()
    {
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        const QString before = rig.text();
        liveBoxOf(rig)->click();
        ThumbDrag hand(thumbOf(rig));
        hand.press();
        hand.moveBy(20);
        hand.moveBy(20);
        QCOMPARE(rig.host.services.count(), 0);
        QCOMPARE(rig.text(), before);
        hand.release();
        QCOMPARE(rig.host.services.count(), 1);
        QVERIFY(rig.text() != before);
        rig.host.services.undo(0);
        QCOMPARE(rig.text(), before);
    }

    void pressingTheThumbAndLettingGoChangesNoBit_data() { SliderEditors::addRows(); }
    void pressingTheThumbAndLettingGoChangesNoBit()
    {
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        if (kind.isReal)
            QVERIFY(rig.field->set("3.1415927"));
        EditorRig::runSensors();
        const QByteArray before = bitsOf(*rig.field);
        dragThumb(rig, 0);
        QCOMPARE(bitsOf(*rig.field), before);
        QCOMPARE(rig.host.services.count(), 1); // a release always commits
    }

    void undoingADragRestoresTheExactValue_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<double>("value");
        QTest::newRow("float 1e-7") << 0 << 1e-7;
        QTest::newRow("float 1/3") << 0 << 1.0 / 3.0;
        QTest::newRow("float nine digits") << 0 << 123456792.0;
        QTest::newRow("float largest") << 0 << 3.4028234663852886e+38;
        QTest::newRow("float smallest normal") << 0 << 1.17549435e-38;
        QTest::newRow("double 17 digits") << 1 << 0.30000000000000004;
        QTest::newRow("double pi") << 1 << 3.1415926535897931;
        QTest::newRow("double 1e-300") << 1 << 1e-300;
        QTest::newRow("double largest") << 1 << 1.7976931348623157e+308;
        QTest::newRow("int32 smallest") << 2 << -2147483648.0;
        QTest::newRow("int32 largest") << 2 << 2147483647.0;
        QTest::newRow("uint32 largest") << 3 << 4294967295.0;
        QTest::newRow("short smallest") << 4 << -32768.0;
        QTest::newRow("ushort largest") << 5 << 65535.0;
    }
    void undoingADragRestoresTheExactValue()
    {
        QFETCH(double, value);
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        setNumbers(rig, value);
        rig.edit();
        const QByteArray before = bitsOf(*rig.field);
        dragThumb(rig, thumbOf(rig)->value() == thumbOf(rig)->minimum() ? 40 : -40);
        QVERIFY(bitsOf(*rig.field) != before);
        undoAll(rig);
        QCOMPARE(bitsOf(*rig.field), before);
    }

    void undoingADragRestoresEvenWhatCoinWritesAndDoesNotRead_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<double>("value");
        const double infinity = std::numeric_limits<double>::infinity();
        for (int kind = 0; kind < 2; ++kind) {
            const QByteArray name = kind == 0 ? "float" : "double";
            QTest::newRow((name + " nan").constData()) << kind << std::nan("");
            QTest::newRow((name + " inf").constData()) << kind << infinity;
            QTest::newRow((name + " -inf").constData()) << kind << -infinity;
        }
    }
    void undoingADragRestoresEvenWhatCoinWritesAndDoesNotRead()
    {
        QFETCH(double, value);
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        setNumbers(rig, value);
        rig.edit();
        const QByteArray before = bitsOf(*rig.field);
        std::unique_ptr<SoField> other(
            static_cast<SoField*>(rig.field->getTypeId().createInstance()));
        QVERIFY(!other->set(rig.text().toLatin1().constData()));
        QCOMPARE(sliderOf<DvRealSlider>(*editor).maximum(), 10.0);
        ThumbDrag hand(thumbOf(rig));
        hand.press();
        hand.moveBy(thumbOf(rig)->value() == 0 ? 60 : -60);
        hand.release();
        QVERIFY(bitsOf(*rig.field) != before);
        undoAll(rig);
        QCOMPARE(bitsOf(*rig.field), before);
    }

    void visitingAValueThatIsNoNumberLeavesIt_data()
    {
        undoingADragRestoresEvenWhatCoinWritesAndDoesNotRead_data();
    }
    void visitingAValueThatIsNoNumberLeavesIt()
    {
        QFETCH(double, value);
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        setNumbers(rig, value);
        const QByteArray before = bitsOf(*rig.field);
        rig.edit();
        QTest::mouseClick(lineOf(rig), Qt::LeftButton);
        rig.leave();
        editor->deactivate();
        QCOMPARE(bitsOf(*rig.field), before);
        QCOMPARE(rig.host.services.count(), 0);
    }

    void nothingStaysOfADragWhenTheContainerDies_data() { SliderEditors::addRows(); }
    void nothingStaysOfADragWhenTheContainerDies()
    {
        const SliderEditor& kind = SliderEditors::fetchRow();
        const auto editor = kind.make();
        EditorRig rig(*editor, kind.field);
        ThumbDrag hand(thumbOf(rig));
        hand.press();
        rig.killNode();
        QVERIFY(!thumbOf(rig)->isSliderDown());
        hand.moveBy(30);
        hand.release();
        QCOMPARE(rig.host.services.count(), 0);
        OwnedNode<SoEveryField> next;
        rig.edit(*next.node->getField(kind.field));
        thumbOf(rig)->setFocus();
        QTest::keyClick(thumbOf(rig), Qt::Key_Right);
        const QString after = rig.text();
        rig.host.services.undo(0);
        QCOMPARE(rig.text(), after); // no text of the dead field's
        editor->deactivate();
        rig.host.services.commands.clear();
    }
};

TAVRIK_TEST_MAIN(tst_DvSFSliderDrags)
#include "tst_DvSFSliderDrags.moc"
