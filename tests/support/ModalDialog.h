#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <utility>

/**
 * Stands in for the user before the next modal dialog, which holds up the test that opens it: acts
 * on the dialog as soon as it is up. A dialog that is still open after that is cancelled.
 */
class ModalDialog
{
public:
    using Action = std::function<void(QDialog&)>;

    explicit ModalDialog(Action action) : m_action(std::move(action))
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(1);
    }
    ModalDialog(const ModalDialog&) = delete;
    ModalDialog& operator=(const ModalDialog&) = delete;

    /** Runs the event loop until no dialog is up, for one that does not hold up who opens it. */
    static void waitForEnd()
    {
        while (QApplication::activeModalWidget())
            QCoreApplication::processEvents();
    }

    /** Whether there was a dialog to act on. */
    bool wasUp() const { return m_wasUp; }

private:
    void look()
    {
        auto* const up = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!up || !up->isVisible())
            return;
        const QPointer<QDialog> watched(up);
        m_timer.stop();
        m_wasUp = true;
        m_action(*up);
        if (QDialog* const left = watched.data(); left && left->isVisible())
            left->reject();
    }

    Action m_action;
    QTimer m_timer;
    bool m_wasUp = false;
};
