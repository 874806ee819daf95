#include "app/AppScreenshot.h"

#include "app/AppRobot.h"
#include "app/AppSceneView.h"
#include "app/AppWindow.h"

#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

namespace {

/** For the driver to draw the picture anew in a window that has just found its size. */
constexpr int Settling = 700; // milliseconds

QByteArray formatOf(const QString& file)
{
    return QFileInfo(file).suffix().toLower().toLatin1();
}

} // namespace

bool AppScreenshot::isPossible()
{
    if (!QImageWriter::supportedImageFormats().contains(formatOf(m_file)))
        return fail(QStringLiteral("its suffix names no format of pictures, as .png does"));
    if (!QFileInfo(QFileInfo(m_file).absolutePath()).isDir())
        return fail(QStringLiteral("there is no such folder"));
    return true;
}

bool AppScreenshot::take(AppWindow& window)
{
    window.raise();
    AppRobot::waitUntil([&window] {
        window.activateWindow(); // a busy window manager may have missed the first request
        return window.isActiveWindow() && AppRobot::isCovered(AppRobot::picture(window.view()));
    });
    AppRobot::wait(Settling);
    QSaveFile file(m_file);
    QImageWriter writer(&file, formatOf(m_file));
    if (!file.open(QIODevice::WriteOnly) || !writer.write(AppRobot::picture(window)) ||
        !file.commit())
        return fail(file.errorString());
    m_message = QStringLiteral("wrote %1").arg(m_file);
    return true;
}

bool AppScreenshot::fail(const QString& reason)
{
    m_message = QStringLiteral("\"%1\" cannot be written: %2.").arg(m_file, reason);
    return false;
}
