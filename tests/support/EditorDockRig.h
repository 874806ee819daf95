#pragma once

#include "tests/support/RecordingHost.h"

#include <TvkProfileSetting.h>

#include <QApplication>
#include <QDockWidget>
#include <QPointer>
#include <QStringList>

/** A dock that follows the selection, on a recording host, with the editors that its setting
 *  controls. */
template <class Dock>
struct EditorDockRig
{
    EditorDockRig()
    {
        dock.createWidgets();
        dock.setProfileSetting(&setting);
        dock.activate();
        // The dock's window is nobody's child before this recording shell.
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == dock.objectName())
                window = qobject_cast<QDockWidget*>(widget);
    }
    ~EditorDockRig()
    {
        dock.deactivate();
        dock.releaseWidgets();
    }
    EditorDockRig(const EditorDockRig&) = delete;
    EditorDockRig& operator=(const EditorDockRig&) = delete;

    RecordingHost host;
    TvkProfileSetting setting;
    Dock dock;
    QPointer<QDockWidget> window;
    QStringList log;
};
