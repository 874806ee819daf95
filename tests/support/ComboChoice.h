#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QtTest>

/** Opens a combo box's list with a click and clicks one of its rows, as a user does. */
inline void clickRow(QComboBox& combo, int row)
{
    QTest::mouseClick(&combo, Qt::LeftButton);
    QAbstractItemView& view = *combo.view();
    QTRY_VERIFY(view.isVisible());
    // Until then the list takes a release for the end of the click that opened it.
    QTest::qWait(2 * QApplication::doubleClickInterval());
    // The row may be wider than the list.
    const QRect area = view.visualRect(view.model()->index(row, 0)) & view.viewport()->rect();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, area.center());
    QTRY_VERIFY(!view.isVisible());
}
