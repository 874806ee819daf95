#include "benchmarks/support/ReportStorm.h"

#include <Inventor/errors/SoDebugError.h>

#include <QList>

ReportStorm::ReportStorm()
{
    for (int thread = 0; thread < threads; ++thread) {
        m_threads.emplace_back([thread] {
            for (int number = 0; number < reportsOfThread; ++number)
                SoDebugError::postWarning("storm", "%d %d", thread, number);
        });
    }
}

ReportStorm::~ReportStorm()
{
    for (std::thread& thread : m_threads)
        thread.join();
}

void ReportCheck::see(const QByteArray& line)
{
    const QList<QByteArray> words = line.split(' ');
    bool isThread = false;
    bool isNumber = false;
    const int thread = words.value(words.size() - 2).toInt(&isThread);
    const int number = words.last().toInt(&isNumber);
    const bool isReport = isThread && isNumber && thread >= 0 && thread < ReportStorm::threads;
    if (isReport && m_next[std::size_t(thread)] == number)
        ++m_next[std::size_t(thread)];
    else if (m_firstWrong.isEmpty())
        m_firstWrong = "not expected: \"" + line + '"';
}

QByteArray ReportCheck::fault() const
{
    if (!m_firstWrong.isEmpty())
        return m_firstWrong;
    for (std::size_t thread = 0; thread < m_next.size(); ++thread) {
        if (m_next[thread] != ReportStorm::reportsOfThread)
            return "of thread " + QByteArray::number(int(thread)) + " only " +
                   QByteArray::number(m_next[thread]) + " were seen";
    }
    return {};
}
