#include "tests/support/RecordingShell.h"

#include <TvkExtension.h>

#include <QDockWidget>
#include <QToolBar>

namespace {
QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString titleOf(const QWidget* widget)
{
    return widget ? quoted(widget->windowTitle()) : QStringLiteral("null");
}

QString nameOf(const TvkExtension* extension)
{
    if (!extension)
        return QStringLiteral("null");
    return quoted(QString::fromUtf8(extension->getName().getString()));
}
} // namespace

RecordingShell::RecordingShell()
{
    setInstance(this);
}

void RecordingShell::addDockWidget(QDockWidget* dock, Qt::DockWidgetArea area)
{
    calls << QStringLiteral("addDockWidget %1 %2").arg(titleOf(dock)).arg(area);
}

void RecordingShell::removeDockWidget(QDockWidget* dock)
{
    calls << QStringLiteral("removeDockWidget %1").arg(titleOf(dock));
}

void RecordingShell::registerExtension(TvkExtension* extension, bool active)
{
    const QString flag = active ? QStringLiteral("true") : QStringLiteral("false");
    calls << QStringLiteral("registerExtension %1 %2").arg(nameOf(extension), flag);
}

void RecordingShell::unregisterExtension(TvkExtension* extension)
{
    calls << QStringLiteral("unregisterExtension %1").arg(nameOf(extension));
}

void RecordingShell::addToolBar(QToolBar* toolBar, Qt::ToolBarArea area)
{
    calls << QStringLiteral("addToolBar %1 %2").arg(titleOf(toolBar)).arg(area);
}

void RecordingShell::removeToolBar(QToolBar* toolBar)
{
    calls << QStringLiteral("removeToolBar %1").arg(titleOf(toolBar));
}
