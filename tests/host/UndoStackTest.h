#pragma once

#include "lib/HostUndoStack.h"

#include "tests/support/RecordingCommand.h"

#include <QObject>

#include <memory>

class SoCone;

/** A test of the undo stack: a fresh one for each function, and what happened to its commands. */
class UndoStackTest : public QObject
{
    Q_OBJECT

protected:
    /** A command that writes down what happens to it, for the stack to take. */
    RecordingCommand* command(const QString& name, SoField* field = nullptr);
    void push(const QString& name, SoField* field = nullptr);
    QStringList texts() const;
    QUndoStack& list() const { return m_stack->stack(); }
    /** A cone with one reference, which the caller takes away. */
    static SoCone* newCone(const char* name);

    std::unique_ptr<HostUndoStack> m_stack;
    QStringList m_log;

private slots:
    void init();
    void cleanup();
};
