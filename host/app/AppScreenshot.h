#pragma once

#include <QString>

#include <utility>

class AppWindow;

/** A picture of the whole window in a file, in the format that the file's suffix names. */
class AppScreenshot
{
public:
    explicit AppScreenshot(QString file) : m_file(std::move(file)) {}

    /** Whether there is a format and a folder for it. Touches no file. */
    bool isPossible();
    /** Waits until the window is drawn. What is in the file stays unless the new picture is whole.
     */
    bool take(AppWindow& window);

    /** What was done, or why it could not be. */
    QString message() const { return m_message; }

private:
    bool fail(const QString& reason);

    QString m_file;
    QString m_message;
};
