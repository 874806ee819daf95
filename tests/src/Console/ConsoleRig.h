#pragma once

#include "Console/ConsoleView.h"
#include "Console/TvkConsole.h"
#include "tests/support/RecordingHost.h"

#include <QCoreApplication>
#include <QTextBlock>

#include <iostream>

/** A console in a host that writes down its calls; made, and active unless a test begins earlier.
 */
class ConsoleRig
{
public:
    enum Start { Constructed, Created, Active };

    explicit ConsoleRig(Start start = Active)
    {
        if (start != Constructed)
            console.createWidgets();
        if (start == Active)
            console.activate();
    }

    ~ConsoleRig()
    {
        console.deactivate();
        console.releaseWidgets();
    }

    ConsoleRig(const ConsoleRig&) = delete;
    ConsoleRig& operator=(const ConsoleRig&) = delete;

    ConsoleView& view() { return *console.m_consoleOutput; }

    /** The paragraphs of the view, as a reader of its document sees them now. */
    QStringList lines() { return view().toPlainText().split(QLatin1Char('\n')); }

    /** The same once everything that was posted has arrived. */
    QStringList arrivedLines()
    {
        QCoreApplication::sendPostedEvents(&console);
        return lines();
    }

    QColor colorOfLine(int line)
    {
        QTextCursor cursor(view().document()->findBlockByNumber(line));
        cursor.movePosition(QTextCursor::NextCharacter);
        return cursor.charFormat().foreground().color();
    }

    RecordingHost host;
    TvkConsole console;
};
