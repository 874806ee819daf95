#pragma once

#include "tests/support/SliderRig.h"

/** The first text that is entered into a slider for integers, and what becomes of it. */
struct FirstEntry
{
    const char* typed;
    qint64 value;
    const char* shown;
    int base;

    template <std::size_t count>
    static void addRows(const FirstEntry (&entries)[count])
    {
        QTest::addColumn<int>("entry");
        int number = 0;
        for (const FirstEntry& entry : entries)
            QTest::addRow("\"%s\"", entry.typed) << number++;
    }

    template <std::size_t count>
    static const FirstEntry& fetchRow(const FirstEntry (&entries)[count])
    {
        QFETCH(int, entry);
        return entries[entry];
    }

    /** Enters it into a new slider of that kind, which stands at 7. */
    template <class Slider>
    void check(int kind) const
    {
        const SliderRig rig(kind, {0, 100, 7});
        rig.enter(QString::fromLatin1(typed));
        const auto* const slider = qobject_cast<Slider*>(rig.slider);
        QVERIFY(slider);
        QCOMPARE(static_cast<qint64>(slider->value()), value);
        QCOMPARE(slider->base(), base);
        QCOMPARE(rig.line->text(), QString::fromLatin1(shown));
        QCOMPARE(rig.slider->valueText(), QString::number(value));
        QCOMPARE(rig.calls, QStringList(QStringLiteral("commit %1").arg(value)));
    }
};
