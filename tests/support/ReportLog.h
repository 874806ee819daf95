#pragma once

#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoError.h>
#include <Inventor/errors/SoReadError.h>

#include <QStringList>

/** Collects what Coin and this library report while it lives, instead of the usual handlers. */
class ReportLog
{
public:
    ReportLog()
    {
        SoError::setHandlerCallback(note, this);
        SoDebugError::setHandlerCallback(note, this);
        SoReadError::setHandlerCallback(note, this);
    }

    ~ReportLog()
    {
        SoError::setHandlerCallback(m_error, m_errorData);
        SoDebugError::setHandlerCallback(m_debug, m_debugData);
        SoReadError::setHandlerCallback(m_read, m_readData);
    }

    ReportLog(const ReportLog&) = delete;
    ReportLog& operator=(const ReportLog&) = delete;

    /** The reports since the last call. */
    QStringList taken()
    {
        QStringList reports;
        reports.swap(m_reports);
        return reports;
    }

private:
    static void note(const SoError* error, void* log)
    {
        static_cast<ReportLog*>(log)->m_reports
            << QString::fromUtf8(error->getDebugString().getString());
    }

    QStringList m_reports;
    SoErrorCB* m_error = SoError::getHandlerCallback();
    void* m_errorData = SoError::getHandlerData();
    SoErrorCB* m_debug = SoDebugError::getHandlerCallback();
    void* m_debugData = SoDebugError::getHandlerData();
    SoErrorCB* m_read = SoReadError::getHandlerCallback();
    void* m_readData = SoReadError::getHandlerData();
};
