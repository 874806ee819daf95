#pragma once

#include "tests/support/EditorRig.h"

#include <QDoubleValidator>

/**
 * What the editors whose numbers stand in lines promise alike, each checked on one of them.
 */
namespace LineChecks {

inline void takeSinglePrecisionNumbers(const EditorRig& rig, const char* name, int count)
{
    QCOMPARE(rig.editor.getWidget()->findChildren<QLineEdit*>(QLatin1String(name)).size(), count);
    for (int i = 0; i < count; ++i) {
        const auto* const validator =
            qobject_cast<const QDoubleValidator*>(rig.find<QLineEdit>(name, i)->validator());
        QVERIFY(validator);
        QCOMPARE(validator->bottom(), -3.4028234663852886e+38);
        QCOMPARE(validator->top(), 3.4028234663852886e+38);
        QCOMPARE(validator->decimals(), 6);
    }
}

inline void leavingCommitsOnce(const EditorRig& rig, QLineEdit* line, const QString& typed,
                               const QString& after)
{
    EditorRig::type(line, typed);
    rig.leave();
    QCOMPARE(rig.text(), after);
    QCOMPARE(rig.host.services.count(), 1);
}

inline void noNumberCountsAsZero(const EditorRig& rig, QLineEdit* line, const QString& after)
{
    line->setText(QStringLiteral("nonsense"));
    rig.editor.applyChanges();
    QCOMPARE(rig.text(), after);
}

inline void halfANumberIsTakenBack(const EditorRig& rig, QLineEdit* line)
{
    const QString shown = line->text();
    const QString before = rig.text();
    EditorRig::type(line, QStringLiteral("-"));
    rig.leave();
    QCOMPARE(line->text(), shown);
    QCOMPARE(rig.text(), before);
    QCOMPARE(rig.host.services.count(), 0);
}

/** Undoing finds the value that the field held when the command was made: the new one. */
inline void keepsTheNewValueWhenUndone(const EditorRig& rig, QLineEdit* line, const QString& typed)
{
    EditorRig::type(line, typed);
    QTest::keyClick(line, Qt::Key_Return);
    QCOMPARE(rig.host.services.count(), 1);
    const QString committed = rig.text();
    QVERIFY(committed.contains(typed));
    rig.host.services.undo(0);
    QCOMPARE(rig.text(), committed);
    rig.host.services.redo(0);
    QCOMPARE(rig.text(), committed);
}

} // namespace LineChecks
