#pragma once

#include "app/AppWindow.h"

#include <QImage>
#include <QTemporaryDir>

#include <memory>

class QLineEdit;
class SoNode;

/** The program's window with the plug-in loaded, on a scene of the test's own, on a real screen. */
class SessionOnScreen
{
public:
    SessionOnScreen();
    ~SessionOnScreen();
    SessionOnScreen(const SessionOnScreen&) = delete;
    SessionOnScreen& operator=(const SessionOnScreen&) = delete;

    /** Shows the window on a scene of a ball, a box and a hat and waits until it is drawn. */
    void start();
    /** The same on another scene. */
    void start(const QByteArray& scene);
    void restart();
    /** Until the window has the keyboard: after a dialog it is the window manager that gives it
     * back. */
    void waitUntilActive() const;
    void finish() { m_window.reset(); }

    AppWindow& window() const { return *m_window; }
    QUndoStack& history() const { return m_window->services().undoStack().stack(); }
    QString sceneFile() const { return m_folder.filePath(QStringLiteral("scene.iv")); }
    QString write(const QString& name, const QByteArray& text) const;

    /** Clicks the row of a named node. */
    void selectNode(const char* name) const;
    /** Clicks the row of a field of the selected node. */
    void selectField(const char* name) const;
    /** Clicks the row of a named node, then that of its field. */
    void select(const char* node, const char* field) const;
    /** Clicks into the 3D view, at a place given in hundredths of its size. */
    void clickInView(int x, int y) const;

    /** The first of the visible widgets of this name; null when there is none. */
    template <class Widget>
    Widget* visible(const char* name) const
    {
        for (Widget* widget : m_window->findChildren<Widget*>(QLatin1String(name)))
            if (widget->isVisible())
                return widget;
        return nullptr;
    }
    /** The lines of the vector editor, x first. */
    QList<QLineEdit*> vectorLines() const;
    /** Replaces a line's text, key by key. */
    static void type(QLineEdit& line, const QString& text);

    /** What the screen shows of the 3D view, when it has come to rest. */
    QImage picture() const;

private:
    QTemporaryDir m_folder;
    std::unique_ptr<AppWindow> m_window;
};
