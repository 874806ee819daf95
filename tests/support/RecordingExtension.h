#pragma once

#include <TvkExtension.h>

#include <QStringList>

/**
 * An extension for tests that writes down each call of its lifecycle, such as `dock activate`, into
 * a log that several may share. It has no widgets.
 */
class RecordingExtension : public TvkExtension
{
    Q_OBJECT

public:
    RecordingExtension(const char* name, QStringList& log);

    void activate() override;
    void deactivate() override;
    void hide() override;
    void createWidgets() override;
    void show() override;
    void releaseWidgets() override;

private:
    QStringList& m_log;
};
