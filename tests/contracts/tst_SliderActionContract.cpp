#include "tests/contracts/SliderRowRig.h"
#include "tests/support/TestMain.h"
#include "tests/support/WheelTurn.h"

/** What the mouse, the wheel and the keys do with the thumb: one commit for each action. */
class tst_SliderActionContract : public QObject
{
    Q_OBJECT

private slots:
    void anArrowKeyCommitsOnce_data() { addSliderRows(); }
    void anArrowKeyCommitsOnce();
    void theWheelCommitsOnceWhileTheThumbHasTheFocus_data() { addSliderRows(); }
    void theWheelCommitsOnceWhileTheThumbHasTheFocus();
    void theWheelChangesNothingWithoutTheFocus_data() { addSliderRows(); }
    void theWheelChangesNothingWithoutTheFocus();
    void everyStepOfALiveDragCommitsAndTheReleaseOnceMore_data() { addSliderRows(); }
    void everyStepOfALiveDragCommitsAndTheReleaseOnceMore();
    void aDragThatIsNotLiveCommitsOnceOnRelease_data() { addSliderRows(); }
    void aDragThatIsNotLiveCommitsOnceOnRelease();
    void keepsAKeyUncommittedWhileDragsAreNotLive_data() { addSliderRows(); }
    void keepsAKeyUncommittedWhileDragsAreNotLive();
    void aPressWithoutAMoveCommitsTheUnchangedValueOnce_data() { addSliderRows(); }
    void aPressWithoutAMoveCommitsTheUnchangedValueOnce();
    void theOldTextIsGoneAfterTheCommit_data() { addSliderRows(); }
    void theOldTextIsGoneAfterTheCommit();
    void aTypedTextIsCommittedBeforeTheThumbIsPressed_data() { addSliderRows(); }
    void aTypedTextIsCommittedBeforeTheThumbIsPressed();
    void theBoxTurnsLiveDragsOffAndOn_data() { addSliderRows(); }
    void theBoxTurnsLiveDragsOffAndOn();
    void aCancelledDragIgnoresTheMouseUntilItIsPressedAgain_data() { addSliderRows(); }
    void aCancelledDragIgnoresTheMouseUntilItIsPressedAgain();
    void aCancelledPressBesideTheThumbStopsRepeating_data() { addSliderRows(); }
    void aCancelledPressBesideTheThumbStopsRepeating();
    void deletingAPressedSliderCommitsNothing_data() { addSliderRows(); }
    void deletingAPressedSliderCommitsNothing();
    void deletingASliderWithATypedTextCommitsNothing_data() { addSliderRows(); }
    void deletingASliderWithATypedTextCommitsNothing();
};

void tst_SliderActionContract::anArrowKeyCommitsOnce()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    SliderRowRig rig(kind, cellMode);
    rig.thumb->setFocus();
    QTest::keyClick(rig.thumb, Qt::Key_Right);
    QCOMPARE(rig.takeCalls(), QStringList(rig.commit(51)));
    QCOMPARE(rig.line->text(), rig.text(51));
    QTest::keyClick(rig.thumb, Qt::Key_Left);
    QCOMPARE(rig.takeCalls(), QStringList(rig.commit(50)));
    rig.leave();
    QCOMPARE(rig.calls, QStringList());
}

void tst_SliderActionContract::theWheelCommitsOnceWhileTheThumbHasTheFocus()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    SliderRowRig rig(kind, cellMode);
    rig.thumb->setFocus();
    turnWheel(*rig.thumb);
    QCOMPARE(rig.calls.size(), 1);
    QVERIFY(rig.number() > 50.0);
    QCOMPARE(rig.calls, QStringList(rig.commit(rig.number())));
}

void tst_SliderActionContract::theWheelChangesNothingWithoutTheFocus()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    const SliderRowRig rig(kind, cellMode);
    turnWheel(*rig.thumb);
    turnWheel(*rig.line);
    turnWheel(*rig.box);
    QCOMPARE(rig.calls, QStringList());
    QCOMPARE(rig.number(), 50.0);
    QVERIFY(!rig.thumb->hasFocus());
}

void tst_SliderActionContract::everyStepOfALiveDragCommitsAndTheReleaseOnceMore()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    SliderRowRig rig(kind, cellMode);
    ThumbDrag drag(rig.thumb);
    drag.press();
    QCOMPARE(rig.calls, QStringList());
    QCOMPARE(rig.oldText(), rig.text(50));
    QStringList expected;
    for (int step = 0; step < 3; ++step) {
        drag.moveBy(20);
        expected << (step == 0 ? rig.commit(rig.number(), 50) : rig.commit(rig.number()));
        QCOMPARE(rig.line->text(), rig.text(rig.number()));
    }
    QVERIFY(rig.number() > 50.0);
    drag.release();
    expected << rig.commit(rig.number());
    QCOMPARE(rig.calls, expected);
}

void tst_SliderActionContract::aDragThatIsNotLiveCommitsOnceOnRelease()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    SliderRowRig rig(kind, cellMode);
    rig.box->click();
    ThumbDrag drag(rig.thumb);
    drag.press();
    drag.moveBy(20);
    drag.moveBy(20);
    QCOMPARE(rig.calls, QStringList());
    QVERIFY(rig.number() > 50.0);
    QCOMPARE(rig.line->text(), rig.text(rig.number()));
    drag.release();
    QCOMPARE(rig.calls, QStringList(rig.commit(rig.number(), 50)));
}

void tst_SliderActionContract::keepsAKeyUncommittedWhileDragsAreNotLive()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    const SliderRowRig rig(kind, cellMode);
    rig.box->click();
    rig.thumb->setFocus();
    QTest::keyClick(rig.thumb, Qt::Key_Right);
    QCOMPARE(rig.calls, QStringList());
    QCOMPARE(rig.line->text(), rig.text(51));
}

void tst_SliderActionContract::aPressWithoutAMoveCommitsTheUnchangedValueOnce()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    const SliderRowRig rig(kind, cellMode);
    const ThumbDrag drag(rig.thumb);
    drag.press();
    drag.release();
    QCOMPARE(rig.calls, QStringList(rig.commit(50, 50)));
}

void tst_SliderActionContract::theOldTextIsGoneAfterTheCommit()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    SliderRowRig rig(kind, cellMode);
    const ThumbDrag drag(rig.thumb);
    drag.press();
    drag.release();
    QCOMPARE(rig.oldText(), QString());
    rig.takeCalls();
    QTest::keyClick(rig.thumb, Qt::Key_Right);
    QCOMPARE(rig.calls, QStringList(rig.commit(51)));
}

void tst_SliderActionContract::aTypedTextIsCommittedBeforeTheThumbIsPressed()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    const SliderRowRig rig(kind, cellMode);
    rig.type("50");
    rig.leave();
    rig.type("40");
    rig.thumb->setFocus();
    const ThumbDrag drag(rig.thumb);
    drag.press();
    drag.release();
    QCOMPARE(rig.calls, QStringList({rig.commit(50), rig.commit(40), rig.commit(40, 40)}));
}

void tst_SliderActionContract::theBoxTurnsLiveDragsOffAndOn()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    const SliderRowRig rig(kind, cellMode);
    QTest::keyClick(rig.box, Qt::Key_Space);
    QVERIFY(!rig.box->isChecked());
    rig.thumb->setValue(rig.thumb->value() + 1);
    QCOMPARE(rig.calls, QStringList());
    QTest::keyClick(rig.box, Qt::Key_Space);
    rig.thumb->setValue(rig.thumb->value() + 1);
    QCOMPARE(rig.calls, QStringList(rig.commit(52)));
}

void tst_SliderActionContract::aCancelledDragIgnoresTheMouseUntilItIsPressedAgain()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    SliderRowRig rig(kind, cellMode);
    ThumbDrag drag(rig.thumb);
    drag.press();
    drag.moveBy(20);
    rig.takeCalls();
    const double value = rig.number();
    rig.slider->cancelDrag();
    QVERIFY(!rig.thumb->isSliderDown());
    QCOMPARE(rig.oldText(), QString());
    drag.moveBy(20);
    drag.release();
    QCOMPARE(rig.calls, QStringList());
    QCOMPARE(rig.number(), value);
    ThumbDrag again(rig.thumb);
    again.press();
    again.release();
    QCOMPARE(rig.calls.size(), 1);
}

void tst_SliderActionContract::aCancelledPressBesideTheThumbStopsRepeating()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    SliderRowRig rig(kind, cellMode);
    QTest::mousePress(rig.thumb, Qt::LeftButton, {},
                      QPoint(rig.thumb->width() - 3, rig.thumb->height() / 2));
    QCOMPARE(rig.takeCalls(), QStringList(rig.commit(60)));
    rig.slider->cancelDrag();
    // Qt repeats a held press for the first time after half a second.
    QTest::qWait(650);
    QCOMPARE(rig.calls, QStringList());
}

void tst_SliderActionContract::deletingAPressedSliderCommitsNothing()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    SliderRowRig rig(kind, cellMode);
    ThumbDrag(rig.thumb).press();
    delete rig.slider.data();
    QTest::mouseRelease(&rig.window, Qt::LeftButton);
    QCOMPARE(rig.calls, QStringList());
}

void tst_SliderActionContract::deletingASliderWithATypedTextCommitsNothing()
{
    QFETCH(int, kind);
    QFETCH(int, cellMode);
    SliderRowRig rig(kind, cellMode);
    rig.type("7");
    QVERIFY(rig.slider->hasPendingEdit());
    delete rig.slider.data();
    QCOMPARE(rig.calls, QStringList());
}

TAVRIK_TEST_MAIN(tst_SliderActionContract)
#include "tst_SliderActionContract.moc"
