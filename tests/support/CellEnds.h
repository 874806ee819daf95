#pragma once

#include "tests/support/TableRig.h"

/** The ways in which a user ends the editing of a cell. */
enum End { Return, Tab, Leave, OtherCell, Escape };

inline void endWith(const TableRig& rig, int end)
{
    switch (end) {
    case Return:
        QTest::keyClick(rig.openLine(), Qt::Key_Return);
        break;
    case Tab:
        QTest::keyClick(rig.openLine(), Qt::Key_Tab);
        break;
    case Leave:
        rig.leave();
        break;
    case OtherCell: {
        DvMFieldTable& table = rig.table();
        const QPoint place = table.visualItemRect(table.item(2, 0)).center();
        table.setFocus(Qt::MouseFocusReason);
        QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, place);
        break;
    }
    default:
        QTest::keyClick(rig.openLine(), Qt::Key_Escape);
    }
    TableRig::settle();
}

inline void addEnds()
{
    QTest::addColumn<int>("end");
    QTest::newRow("Return") << int(Return);
    QTest::newRow("Tab") << int(Tab);
    QTest::newRow("leaving") << int(Leave);
    QTest::newRow("another cell") << int(OtherCell);
}
