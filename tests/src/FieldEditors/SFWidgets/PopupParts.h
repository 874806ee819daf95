#pragma once

#include "tests/support/EditorRig.h"

#include <QFrame>
#include <QLineEdit>
#include <QPushButton>

/*
 * The parts of an editor with a pop-up, as a user sees them.
 */

inline QFrame* popup(const EditorRig& rig)
{
    return rig.find<QFrame>("m_popupFrame");
}

inline QPushButton* button(const EditorRig& rig)
{
    return rig.find<QPushButton>("m_editButton");
}

inline QLineEdit* cell(const EditorRig& rig, int i)
{
    return rig.find<QLineEdit>("m_popupLine", i);
}

inline QLineEdit* line(const EditorRig& rig)
{
    return rig.find<QLineEdit>("lineEdit");
}

inline void open(const EditorRig& rig)
{
    QTest::mouseClick(button(rig), Qt::LeftButton);
}
