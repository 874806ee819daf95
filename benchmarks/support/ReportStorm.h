#pragma once

#include <QByteArray>

#include <thread>
#include <vector>

/** Eight threads that report a million errors to the scene graph library, each its share. */
class ReportStorm
{
public:
    static constexpr int threads = 8;
    static constexpr int reportsOfThread = 125000;
    static constexpr int reports = threads * reportsOfThread;

    ReportStorm();
    /** Waits for the threads. */
    ~ReportStorm();
    ReportStorm(const ReportStorm&) = delete;
    ReportStorm& operator=(const ReportStorm&) = delete;

private:
    std::vector<std::thread> m_threads;
};

/** Follows the lines that a storm has led to, in the order in which they are shown. */
class ReportCheck
{
public:
    /** Takes the next line; whatever is no report of a storm is an error. */
    void see(const QByteArray& line);
    /** Empty if every report was seen, those of a thread in their order; else what is wrong. */
    QByteArray fault() const;

private:
    std::vector<int> m_next = std::vector<int>(ReportStorm::threads, 0);
    QByteArray m_firstWrong;
};
