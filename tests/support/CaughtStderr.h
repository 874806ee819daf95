#pragma once

#include <QFile>
#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>

/** What the program writes to standard error while this lives. */
class CaughtStderr
{
public:
    CaughtStderr() : m_saved(dup(STDERR_FILENO))
    {
        std::fflush(stderr);
        if (m_file.open())
            dup2(m_file.handle(), STDERR_FILENO);
    }
    ~CaughtStderr()
    {
        std::fflush(stderr);
        dup2(m_saved, STDERR_FILENO);
        close(m_saved);
    }
    CaughtStderr(const CaughtStderr&) = delete;
    CaughtStderr& operator=(const CaughtStderr&) = delete;

    QByteArray text() const
    {
        std::fflush(stderr);
        QFile written(m_file.fileName());
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
    }

private:
    const int m_saved;
    QTemporaryFile m_file;
};
