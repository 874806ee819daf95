#include "tests/host/UndoStackTest.h"

#include <Inventor/nodes/SoCone.h>

RecordingCommand* UndoStackTest::command(const QString& name, SoField* field)
{
    return new RecordingCommand(name, m_log, field);
}

void UndoStackTest::push(const QString& name, SoField* field)
{
    m_stack->push(command(name, field));
}

QStringList UndoStackTest::texts() const
{
    QStringList result;
    for (int i = 0; i < list().count(); ++i)
        result << list().text(i);
    return result;
}

SoCone* UndoStackTest::newCone(const char* name)
{
    auto* cone = new SoCone;
    cone->ref();
    cone->setName(name);
    return cone;
}

void UndoStackTest::init()
{
    m_stack = std::make_unique<HostUndoStack>();
    m_log.clear();
}

void UndoStackTest::cleanup()
{
    m_stack.reset();
}
