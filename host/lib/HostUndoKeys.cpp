#include "lib/HostUndoKeys.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

const QLineEdit* lineOf(const QObject* widget)
{
    const auto* line = qobject_cast<const QLineEdit*>(widget);
    if (!line && qobject_cast<const QAbstractSpinBox*>(widget))
        line = widget->findChild<const QLineEdit*>();
    return line;
}

/** Also through dialogs, pop-ups and floating docks, which are windows of their own. */
bool isBelow(const QObject* object, const QObject* ancestor)
{
    while (object && object != ancestor)
        object = object->parent();
    return object != nullptr;
}

} // namespace

HostUndoKeys::HostUndoKeys(const QWidget& window) : m_window(window)
{
    qApp->installEventFilter(this);
}

bool HostUndoKeys::belongsToTheLine(const QKeyEvent& event, const QObject* watched) const
{
    const bool undo = event.matches(QKeySequence::Undo);
    const bool redo = event.matches(QKeySequence::Redo);
    const QLineEdit* line = undo || redo ? lineOf(watched) : nullptr;
    if (!line || !isBelow(line, &m_window))
        return true;
    return line->isModified() && (undo ? line->isUndoAvailable() : line->isRedoAvailable());
}

bool HostUndoKeys::eventFilter(QObject* watched, QEvent* event)
{
    // A line that accepts the override gets the key; one that never sees it leaves the key to the
    // window's actions.
    if (event->type() == QEvent::ShortcutOverride &&
        !belongsToTheLine(*static_cast<QKeyEvent*>(event), watched)) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
