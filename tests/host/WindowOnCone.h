#pragma once

#include "lib/HostMainWindow.h"

#include <QMessageBox>
#include <QTemporaryDir>

#include <memory>

class SoCone;
class TvkPlugin;

/** The host's window without a 3D view, on a scene with a cone in a group. */
class WindowOnCone
{
public:
    /** Gives the settings a place of their own. */
    WindowOnCone();

    /** A new window on the scene as it was written first; no settings. */
    void start();
    /** A new window without a scene, with the settings that the last one left. */
    void restart();
    void finish() { m_window.reset(); }
    /** A plug-in for every new window from now on; null for none. Not owned. */
    void setPlugin(TvkPlugin* plugin) { m_plugin = plugin; }

    HostMainWindow* operator->() const { return m_window.get(); }
    HostMainWindow& operator*() const { return *m_window; }

    QString file() const { return path(QStringLiteral("cone.iv")); }
    QString path(const QString& name) const { return m_folder.filePath(name); }
    QString write(const QString& name, const QByteArray& text) const;
    static QString contents(const QString& path);

    /** A part of the window, which must be there. */
    template <class Object>
    Object* child(const char* name) const
    {
        auto* object = m_window->findChild<Object*>(QLatin1String(name));
        return object ? object : (qFatal("there is no %s", name), nullptr);
    }
    /** The row of a named node in the tree. */
    QModelIndex row(const char* nodeName) const;
    void selectNode(const char* name) const;
    void selectField(const char* name) const;

    static SoCone& cone();
    /** Sets the cone's height to 7 by way of the undo stack. */
    void edit() const;

    /** Presses a button of the box that the code under test is about to wait for. */
    static void answerNextBox(QMessageBox::StandardButton button);

private:
    QTemporaryDir m_folder;
    TvkPlugin* m_plugin = nullptr;
    std::unique_ptr<HostMainWindow> m_window;
};
