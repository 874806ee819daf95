#include "tests/contracts/SliderRowRig.h"
#include "tests/support/SlotOrder.h"
#include "tests/support/TestMain.h"

#include <QBoxLayout>
#include <QMetaMethod>

namespace {

/** Makes the operations that a type of value implements visible. */
struct Operations : DvSlider
{
    using DvSlider::storeOldValue;
    using DvSlider::updateText;
    using DvSlider::updateValueFromPosition;
    using DvSlider::updateValueFromText;
};

} // namespace

class tst_SliderContract : public QObject
{
    Q_OBJECT

private slots:
    void aKindOutsideOfTheTableHasNoSlider();
    void theSlotsAreDeclaredInTheirOrderAndThereAreNoSignals();
    void theOperationsOfATypeStandInTheirOrder();
    void isBuiltOfABoxASliderAndALine_data() { addSliderRows(); }
    void isBuiltOfABoxASliderAndALine();
    void startsLiveAtZeroWithNothingPending_data() { addSliderRows(); }
    void startsLiveAtZeroWithNothingPending();
    void theKeyboardGoesFromTheBoxToTheLineAndEachHasAName_data() { addSliderRows(); }
    void theKeyboardGoesFromTheBoxToTheLineAndEachHasAName();
    void showingARangeOrAValueCommitsNothing_data() { addSliderRows(); }
    void showingARangeOrAValueCommitsNothing();
    void aShownValueIsSeenFromItsStart_data() { addSliderRows(); }
    void aShownValueIsSeenFromItsStart();
    void returnAndThenLeavingCommitOnce_data() { addSliderRows(); }
    void returnAndThenLeavingCommitOnce();
    void leavingATypedTextCommitsOnce_data() { addSliderRows(); }
    void leavingATypedTextCommitsOnce();
    void leavingAnUneditedLineCommitsNothing_data() { addSliderRows(); }
    void leavingAnUneditedLineCommitsNothing();
    void escapeShowsTheValueAgainAndCommitsNothing_data() { addSliderRows(); }
    void escapeShowsTheValueAgainAndCommitsNothing();
    void aTextTakenWithoutACommitIsTheValue_data() { addSliderRows(); }
    void aTextTakenWithoutACommitIsTheValue();
    void aTextWiderThanTheRangeWidensIt_data() { addSliderRows(); }
    void aTextWiderThanTheRangeWidensIt();
};

void tst_SliderContract::aKindOutsideOfTheTableHasNoSlider()
{
    SliderRig rig(DvSlider::FloatKind);
    struct Owner final : DvSliderOwner
    {
        void commitSlider() override {}
        void commitSliderCell(int, int) override {}
        void revertSlider() override {}
    } owner;
    for (const int kind : {-1, 0, 7, 100})
        QVERIFY(!DvSlider::create(kind, 0, owner, &rig.window, 0, 1));
}

void tst_SliderContract::theSlotsAreDeclaredInTheirOrderAndThereAreNoSignals()
{
    const QMetaObject& meta = DvSlider::staticMetaObject;
    QList<QByteArray> publicSlots;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QVERIFY(meta.method(i).methodType() == QMetaMethod::Slot);
        if (meta.method(i).access() == QMetaMethod::Public)
            publicSlots << meta.method(i).methodSignature();
    }
    QCOMPARE(publicSlots,
             QList<QByteArray>({"changeValueFromEdit()", "eventNotify(bool)", "beginCallback()",
                                "finishCallback()", "valueChangeSlot(int)"}));
}

void tst_SliderContract::theOperationsOfATypeStandInTheirOrder()
{
    const int first = slotOf(&DvSlider::onTextEntered);
    QVERIFY(first > 0);
    QCOMPARE(slotOf(&Operations::updateText), first + 1);
    QCOMPARE(slotOf(&Operations::updateValueFromText), first + 2);
    QCOMPARE(slotOf(&Operations::updateValueFromPosition), first + 3);
    QCOMPARE(slotOf(&Operations::storeOldValue), first + 4);
}

void tst_SliderContract::isBuiltOfABoxASliderAndALine()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    const SliderRowRig rig(kind, cellMode);
    QCOMPARE(rig.slider->objectName(), QStringLiteral("DvSliderFrame"));
    QCOMPARE(rig.slider->parentWidget(), &rig.window);
    auto* const outer = qobject_cast<QHBoxLayout*>(rig.slider->layout());
    QVERIFY(outer);
    QCOMPARE(outer->contentsMargins(), QMargins(2, 2, 2, 2));
    auto* const inner = rig.slider->findChild<QHBoxLayout*>("tavrikslider");
    QVERIFY(inner);
    QCOMPARE(outer->itemAt(0)->layout(), inner);
    QCOMPARE(inner->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(inner->spacing(), 3);
    QCOMPARE(inner->count(), 3);
    QCOMPARE(inner->itemAt(0)->widget(), rig.box);
    QCOMPARE(inner->itemAt(1)->widget(), rig.thumb);
    QCOMPARE(inner->itemAt(2)->widget(), rig.line);
    QCOMPARE(rig.thumb->orientation(), Qt::Horizontal);
    QVERIFY(rig.thumb->hasTracking());
    QCOMPARE(rig.line->maxLength(), std::numeric_limits<int>::max());
}

void tst_SliderContract::startsLiveAtZeroWithNothingPending()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    SliderRig rig(kind, cellMode);
    QVERIFY(rig.box->isChecked());
    QCOMPARE(rig.number(), 0.0);
    QCOMPARE(rig.line->text().toDouble(), 0.0);
    QVERIFY(!rig.slider->hasPendingEdit());
    QCOMPARE(rig.oldText(), QString());
    QCOMPARE(rig.calls, QStringList());
}

void tst_SliderContract::theKeyboardGoesFromTheBoxToTheLineAndEachHasAName()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    const SliderRowRig rig(kind, cellMode);
    rig.box->setFocus();
    QTest::keyClick(rig.box, Qt::Key_Tab);
    QVERIFY(rig.thumb->hasFocus());
    QTest::keyClick(rig.thumb, Qt::Key_Tab);
    QVERIFY(rig.line->hasFocus());
    for (const QWidget* part : {static_cast<QWidget*>(rig.box), static_cast<QWidget*>(rig.thumb),
                                static_cast<QWidget*>(rig.line)})
        QVERIFY(!part->accessibleName().isEmpty());
    QCOMPARE(rig.calls, QStringList());
}

void tst_SliderContract::showingARangeOrAValueCommitsNothing()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    const SliderRowRig rig(kind, cellMode);
    rig.show(0, 100, 5000);
    rig.show(0, 10, 5);
    rig.show(60, 100, 70);
    rig.show(0, 100, 0);
    QCOMPARE(rig.calls, QStringList());
    QCOMPARE(rig.number(), 0.0);
}

void tst_SliderContract::aShownValueIsSeenFromItsStart()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    const SliderRowRig rig(kind, cellMode);
    rig.show(0, 100, 12345);
    QCOMPARE(rig.line->cursorPosition(), 0);
    QCOMPARE(rig.line->text(), rig.text(12345));
    QVERIFY(!rig.slider->hasPendingEdit());
}

void tst_SliderContract::returnAndThenLeavingCommitOnce()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    SliderRowRig rig(kind, cellMode);
    rig.type("7");
    QVERIFY(rig.slider->hasPendingEdit());
    QCOMPARE(rig.calls, QStringList());
    QTest::keyClick(rig.line, Qt::Key_Return);
    QCOMPARE(rig.takeCalls(), QStringList(rig.commit(7)));
    QVERIFY(!rig.slider->hasPendingEdit());
    QTest::keyClick(rig.line, Qt::Key_Return);
    rig.leave();
    QCOMPARE(rig.calls, QStringList());
}

void tst_SliderContract::leavingATypedTextCommitsOnce()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    const SliderRowRig rig(kind, cellMode);
    rig.type("7");
    rig.leave();
    QCOMPARE(rig.calls, QStringList(rig.commit(7)));
    QCOMPARE(rig.number(), 7.0);
}

void tst_SliderContract::leavingAnUneditedLineCommitsNothing()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    const SliderRowRig rig(kind, cellMode);
    QTest::mouseClick(rig.line, Qt::LeftButton);
    rig.line->setFocus();
    QTest::keyClick(rig.line, Qt::Key_Return);
    rig.leave();
    QCOMPARE(rig.calls, QStringList());
}

void tst_SliderContract::escapeShowsTheValueAgainAndCommitsNothing()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    const SliderRowRig rig(kind, cellMode);
    rig.type("7");
    QTest::keyClick(rig.line, Qt::Key_Escape);
    QCOMPARE(rig.line->text(), rig.text(50));
    QVERIFY(!rig.slider->hasPendingEdit());
    rig.leave();
    QCOMPARE(rig.calls, QStringList("revert"));
    QCOMPARE(rig.number(), 50.0);
}

void tst_SliderContract::aTextTakenWithoutACommitIsTheValue()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    const SliderRowRig rig(kind, cellMode);
    rig.slider->takePendingEdit();
    QCOMPARE(rig.number(), 50.0);
    rig.type("7");
    rig.slider->takePendingEdit();
    QCOMPARE(rig.number(), 7.0);
    QVERIFY(!rig.slider->hasPendingEdit());
    rig.leave();
    QCOMPARE(rig.calls, QStringList());
}

void tst_SliderContract::aTextWiderThanTheRangeWidensIt()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    const SliderRowRig rig(kind, cellMode);
    rig.enter("250");
    QCOMPARE(rig.calls, QStringList(rig.commit(250)));
    QCOMPARE(rig.thumb->value(), rig.thumb->maximum());
    rig.enter("0");
    QCOMPARE(rig.thumb->value(), rig.thumb->minimum());
    QCOMPARE(rig.number(), 0.0);
}

TAVRIK_TEST_MAIN(tst_SliderContract)
#include "tst_SliderContract.moc"
