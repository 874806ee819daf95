#pragma once

#include "tests/support/ThumbDrag.h"

#include "FieldEditors/DvIntSlider.h"
#include "FieldEditors/DvRealSlider.h"
#include "FieldEditors/DvSliderOwner.h"
#include "FieldEditors/DvUIntSlider.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPointer>
#include <QVBoxLayout>

/**
 * A slider of some kind in an active window of its own, beside another line to go on to. Its owner
 * is the rig, which writes each call down with the value and the old text that it finds.
 */
class SliderRig : private DvSliderOwner
{
public:
    explicit SliderRig(int kind, int cellMode = 0, int row = 0, int column = 1)
        : slider(DvSlider::create(kind, cellMode, *this, &window, row, column)),
          thumb(slider->findChild<QSlider*>()), line(slider->findChild<QLineEdit*>("lineEdit")),
          box(slider->findChild<QCheckBox*>())
    {
        auto* const layout = new QVBoxLayout(&window);
        layout->addWidget(other);
        layout->addWidget(slider);
        window.resize(640, 200);
        window.show();
        QApplication::setActiveWindow(&window);
        other->setFocus();
    }

    virtual ~SliderRig() = default;
    SliderRig(const SliderRig&) = delete;
    SliderRig& operator=(const SliderRig&) = delete;

    /** What a slider shows at first: a range that grows, and a value. */
    struct Start
    {
        double minimum;
        double maximum;
        double value;
    };
    SliderRig(int kind, const Start& start) : SliderRig(kind)
    {
        show(start.minimum, start.maximum, start.value);
    }

    /** A range that grows, and a value, for a slider of any kind. */
    void show(double minimum, double maximum, double value) const
    {
        showIn(qobject_cast<DvRealSlider*>(slider), minimum, maximum, value);
        showIn(qobject_cast<DvIntSlider*>(slider), minimum, maximum, value);
        showIn(qobject_cast<DvUIntSlider*>(slider), minimum, maximum, value);
    }

    DvRealSlider& real() const { return *qobject_cast<DvRealSlider*>(slider); }
    DvIntSlider& integer() const { return *qobject_cast<DvIntSlider*>(slider); }
    DvUIntSlider& natural() const { return *qobject_cast<DvUIntSlider*>(slider); }

    /** The value as a number, whatever its type. */
    double number() const { return slider->valueText().toDouble(); }
    QString oldText() const { return QString::fromLatin1(slider->oldValueText().getString()); }

    /** Replaces the line's text as a user does: click, select all, type. */
    void type(const QString& text) const
    {
        QTest::mouseClick(line, Qt::LeftButton);
        line->setFocus();
        line->selectAll();
        if (text.isEmpty())
            QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, text);
    }

    void enter(const QString& text) const
    {
        type(text);
        QTest::keyClick(line, Qt::Key_Return);
    }

    void leave() const { other->setFocus(); }

    /** Presses the thumb and lets go of it where it is. */
    void pressAndRelease() const
    {
        thumb->setSliderDown(true);
        thumb->setSliderDown(false);
    }

    /** The calls since the last time that somebody asked. */
    QStringList takeCalls()
    {
        const QStringList taken = calls;
        calls.clear();
        return taken;
    }

    QStringList calls; ///< such as "commit 5", "cell 3 4: 5", "revert"; "(was 2)" with an old text
    QWidget window;
    QLineEdit* other = new QLineEdit(&window);
    QPointer<DvSlider> slider;
    QSlider* thumb;
    QLineEdit* line;
    QCheckBox* box;

private:
    template <class Slider>
    static void showIn(Slider* slider, double minimum, double maximum, double value)
    {
        using Value = decltype(slider->value());
        if (!slider)
            return;
        slider->setRange(static_cast<Value>(minimum), static_cast<Value>(maximum), false);
        slider->setValue(static_cast<Value>(value));
    }

    void note(const QString& call)
    {
        const QString old = oldText();
        calls << call + slider->valueText() +
                     (old.isEmpty() ? QString() : QStringLiteral(" (was %1)").arg(old));
    }

    void commitSlider() override { note(QStringLiteral("commit ")); }
    void commitSliderCell(int row, int column) override
    {
        note(QStringLiteral("cell %1 %2: ").arg(row).arg(column));
    }
    void revertSlider() override { calls << QStringLiteral("revert"); }
};
