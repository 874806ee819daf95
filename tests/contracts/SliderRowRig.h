#pragma once

#include "tests/support/SliderRig.h"

/** A row for each kind of slider, in an editor of its own and in a table cell. */
inline void addSliderRows()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("cellMode");
    const char* const names[] = {"float", "double", "int32", "uint32", "short", "ushort"};
    for (int kind = DvSlider::FloatKind; kind <= DvSlider::UShortKind; ++kind) {
        QTest::addRow("%s", names[kind - 1]) << kind << 0;
        QTest::addRow("%s in a cell", names[kind - 1]) << kind << 1;
    }
}

/** A slider from 0 to 100 at 50, of the kind and in the mode that the test's row names. */
struct SliderRowRig : SliderRig
{
    SliderRowRig(int sliderKind, int mode)
        : SliderRig(sliderKind, mode, 3, 4), kind(sliderKind), cellMode(mode)
    {
        show(0, 100, 50);
    }

    /** The call that a commit of a value makes in this mode. */
    QString commit(double value) const
    {
        const QString to = cellMode ? QStringLiteral("cell 3 4: ") : QStringLiteral("commit ");
        return to + text(value);
    }

    /** The same where the slider still holds the text from before. */
    QString commit(double value, double old) const
    {
        return commit(value) + QStringLiteral(" (was %1)").arg(text(old));
    }

    /** A whole number in the slider's form. */
    QString text(double value) const
    {
        return QString::number(value, 'f', kind == DvSlider::FloatKind ? 6 : 0);
    }

    const int kind;
    const int cellMode;
};
