#pragma once

#include <TvkCommand.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <utility>

/**
 * A command for tests: writes down each call as `name execute`, `name undo`, `name redo` and
 * `name deleted`, and then does what the test wants done in it.
 */
class RecordingCommand : public TvkCommand
{
public:
    RecordingCommand(QString name, QStringList& log, SoField* field = nullptr)
        : TvkCommand(field), m_name(std::move(name)), m_log(log)
    {}
    ~RecordingCommand() override { note("deleted"); }

    void execute() override { run("execute", onExecute); }
    void undo() override { run("undo", onUndo); }
    void redo() override { run("redo", onRedo); }

    std::function<void()> onExecute;
    std::function<void()> onUndo;
    std::function<void()> onRedo;

private:
    void note(const char* what) { m_log << m_name + QLatin1Char(' ') + QLatin1String(what); }
    void run(const char* what, const std::function<void()>& action)
    {
        note(what);
        if (action)
            action();
    }

    const QString m_name;
    QStringList& m_log;
};
