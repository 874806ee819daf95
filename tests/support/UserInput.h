#pragma once

#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QtTest>

/** Replaces a line's text by any other, also one that no keys of QTest have: as an input method. */
inline void enterText(QLineEdit& line, const QString& text)
{
    line.setFocus();
    line.selectAll();
    QTest::keyClick(&line, Qt::Key_Delete);
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(&line, &event);
}
