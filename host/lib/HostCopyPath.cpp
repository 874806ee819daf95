#include "lib/HostCopyPath.h"

#include <QAbstractItemView>
#include <QAction>
#include <QCoreApplication>

void HostCopyPath::addTo(QAbstractItemView& view, const QString& name, const QObject* receiver,
                         const char* slot)
{
    auto* const action =
        new QAction(QCoreApplication::translate("HostCopyPath", "Copy &path"), &view);
    action->setObjectName(name);
    action->setShortcut(Qt::CTRL + Qt::SHIFT + Qt::Key_C);
    action->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(action, SIGNAL(triggered()), receiver, slot);
    view.addAction(action);
    view.setContextMenuPolicy(Qt::ActionsContextMenu);
}
